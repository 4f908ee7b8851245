import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The game gate: how far the charge is, how long the lock lasts, or that a game may be played. */
Item {
    id: root

    required property GamesPresenter presenter

    readonly property bool charging: presenter.face === GamesPresenter.Charging
    readonly property bool ready: presenter.face === GamesPresenter.Ready
    readonly property color tone: ready ? Style.palette.tierProductive
                                        : charging ? Style.palette.amber : Style.palette.strongMute

    implicitHeight: 268

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: 0

        Symbol {
            objectName: "gateSymbol"
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.presenter.gateSymbol
            side: 44
            color: Style.legibleOn(Style.palette.textGround, root.tone)
        }

        PlainText {
            objectName: "gateTitle"
            width: parent.width
            topPadding: 16
            text: root.presenter.gateTitle
            font: Style.tracked(Style.serif(12, Style.Semibold), 1.2)
            color: Style.palette.primaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Accessible.ignored: !visible || text === ""
        }

        Item {
            width: parent.width
            height: 22
            visible: root.charging

            Meter {
                objectName: "charge"
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                width: 110
                height: 6
                fraction: root.presenter.chargeProgress
                accessibleName: root.presenter.gateTitle
                valueText: root.presenter.chargeText
            }
        }

        AccessibleText {
            objectName: "gateTime"
            width: parent.width
            topPadding: 12
            visible: text !== ""
            text: root.presenter.timeText
            font: Style.mono(13, Style.Medium)
            color: Style.palette.primaryText
            horizontalAlignment: Text.AlignHCenter
        }

        AccessibleText {
            objectName: "gateLine"
            width: parent.width
            topPadding: 8
            text: root.presenter.gateLine
            font: Style.sans(11, Style.Regular)
            color: Style.palette.secondaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        Item {
            width: parent.width
            height: 52
            visible: root.ready

            TextButton {
                objectName: "play"
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                primary: true
                text: root.presenter.playText
                onClicked: root.presenter.play()
            }
        }
    }
}
