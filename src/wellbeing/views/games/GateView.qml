import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The game gate: how far the charge is, how long the lock lasts, or that a game may be played. */
Item {
    id: root

    required property GamesPresenter presenter

    /*! Pixels per point of the layout. */
    property real unit: 1

    readonly property bool charging: presenter.face === GamesPresenter.Charging
    readonly property bool ready: presenter.face === GamesPresenter.Ready
    readonly property color tone: ready ? Style.palette.tierProductive
                                        : charging ? Style.palette.amber : Style.palette.strongMute

    implicitHeight: 268 * unit

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: 0

        Symbol {
            objectName: "gateSymbol"
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.presenter.gateSymbol
            side: 44 * root.unit
            color: Style.legibleOn(Style.palette.textGround, root.tone)
        }

        PlainText {
            objectName: "gateTitle"
            width: parent.width
            topPadding: 16 * root.unit
            text: root.presenter.gateTitle
            font: Style.tracked(Style.serif(12 * root.unit, Style.Semibold), 1.2 * root.unit)
            color: Style.palette.primaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Accessible.ignored: !visible || text === ""
        }

        Item {
            width: parent.width
            height: 22 * root.unit
            visible: root.charging

            Meter {
                objectName: "charge"
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                width: 110 * root.unit
                height: 6 * root.unit
                fraction: root.presenter.chargeProgress
                accessibleName: root.presenter.gateTitle
                valueText: root.presenter.chargeText
            }
        }

        AccessibleText {
            objectName: "gateTime"
            width: parent.width
            topPadding: 12 * root.unit
            visible: text !== ""
            text: root.presenter.timeText
            font: Style.mono(13 * root.unit, Style.Medium)
            color: Style.palette.primaryText
            horizontalAlignment: Text.AlignHCenter
        }

        AccessibleText {
            objectName: "gateLine"
            width: parent.width
            topPadding: 8 * root.unit
            text: root.presenter.gateLine
            font: Style.sans(11 * root.unit, Style.Regular)
            color: Style.palette.secondaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        Item {
            width: parent.width
            height: 52 * root.unit
            visible: root.ready

            TextButton {
                objectName: "play"
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                primary: true
                implicitWidth: implicitContentWidth + 36 * root.unit
                implicitHeight: 36 * root.unit
                cornerRadius: Style.metrics.chipRadius * root.unit
                textSize: 14 * root.unit
                text: root.presenter.playText
                onClicked: root.presenter.play()
            }
        }
    }
}
