pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The productivity of today, and a bar for each tier. */
Gadget {
    id: root

    required property ProductivityGadgetPresenter presenter

    gadget: presenter

    GadgetFigure {
        objectName: "score"
        width: parent.width
        height: bars.y
        text: root.presenter.score
        font: Style.mono(42 * root.unit, Style.Light)
        color: Style.legibleOn(root.ground, root.presenter.scoreColor)
        verticalAlignment: Text.AlignVCenter
        Accessible.name: root.presenter.scoreAccessibleText
    }
    Column {
        id: bars

        anchors.bottom: parent.bottom
        width: parent.width
        spacing: 4 * root.unit

        Repeater {
            model: root.presenter.bars
            delegate: GadgetBarLine {
                width: bars.width
                unit: root.unit
                ink: root.ink
                quiet: root.quiet
            }
        }
    }
}
