pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The load of the machine. */
Gadget {
    id: root

    required property SystemGadgetPresenter presenter

    gadget: presenter

    Column {
        id: bars

        width: parent.width
        spacing: 14 * root.unit

        Repeater {
            model: root.presenter.bars
            delegate: GadgetBarLine {
                width: bars.width
                unit: root.unit
                ink: root.ink
                quiet: root.quiet
                textSize: 13
                thickness: 5
            }
        }
    }
    Item {
        objectName: "network"
        anchors.bottom: parent.bottom
        width: parent.width
        height: 14 * root.unit
        Accessible.role: Accessible.StaticText
        Accessible.name: root.presenter.networkAccessibleText

        Symbol {
            id: symbol

            anchors.verticalCenter: parent.verticalCenter
            name: root.presenter.networkSymbol
            side: 12 * root.unit
            color: root.quiet
        }
        PlainText {
            id: name

            anchors.left: symbol.right
            anchors.leftMargin: 4 * root.unit
            anchors.verticalCenter: parent.verticalCenter
            text: root.presenter.network
            font: Style.sans(10 * root.unit, Style.Regular)
            color: root.quiet
            Accessible.ignored: true
        }
        GadgetRate {
            anchors.right: upload.left
            anchors.rightMargin: 6 * root.unit
            anchors.baseline: name.baseline
            unit: root.unit
            ink: root.ink
            ground: root.ground
            symbol: "arrow.down"
            color: Style.palette.tierProductive
            value: root.presenter.download
        }
        GadgetRate {
            id: upload

            anchors.right: parent.right
            anchors.baseline: name.baseline
            unit: root.unit
            ink: root.ink
            ground: root.ground
            symbol: "arrow.up"
            color: Style.palette.tierNeutral
            value: root.presenter.upload
        }
    }
}
