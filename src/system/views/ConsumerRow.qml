pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.System
import Tidewatch.Ui

/*! A row of a list of processes. Its button takes the place of the figure while the pointer or the focus is there. */
Item {
    id: root

    required property systemConsumer row
    property string quitText

    readonly property bool offersQuit: pointer.hovered || quit.activeFocus

    signal quitRequested

    implicitHeight: 28
    Accessible.role: Accessible.ListItem
    Accessible.name: row.accessibleText

    HoverHandler {
        id: pointer
    }
    NameText {
        anchors.left: parent.left
        anchors.right: quit.left
        anchors.rightMargin: Style.metrics.spacing
        anchors.verticalCenter: parent.verticalCenter
        text: root.row.name
        font: Style.sans(12, Style.Regular)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
    PlainText {
        objectName: "value"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.offersQuit
        text: root.row.value
        font: Style.mono(12, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
    PressButton {
        id: quit

        objectName: "quit"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        // As wide as the figure that it covers.
        width: 64
        implicitHeight: 24
        text: root.quitText
        accessibleName: root.row.quitHelp
        onClicked: root.quitRequested()

        contentItem: PlainText {
            // Not the button itself, which must stay in reach of keyboard and screen reader.
            visible: root.offersQuit
            text: quit.text
            font: Style.sans(12, Style.Medium)
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            color: Style.legibleOn(Style.palette.textGround, Style.palette.tierDistracting)
            Accessible.ignored: true
        }
        background: Rectangle {
            visible: root.offersQuit
            radius: Style.metrics.controlRadius
            color: quit.hovered || quit.down ? Style.palette.cardSubtle : "transparent"
            border.width: 1
            border.color: Style.palette.stroke
        }
    }
    // Created only if needed.
    Repeater {
        model: quit.hovered ? 1 : 0
        delegate: Bubble {
            objectName: "help"
            text: root.row.quitHelp
        }
    }
}
