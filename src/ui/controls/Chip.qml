import QtQuick
import Tidewatch.Ui

/*! A filter chip: filled and coloured when on, outlined when off. */
PressButton {
    id: root

    /*! The colour of the dot. */
    property color color: Style.palette.strongMute

    function flip() {
        if (!enabled)
            return;
        toggle();
        toggled();
    }

    horizontalPadding: 12
    cornerRadius: implicitHeight / 2
    checkable: true

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: flip()
    Accessible.onToggleAction: flip()

    Keys.onReturnPressed: flip()
    Keys.onEnterPressed: flip()

    contentItem: Row {
        spacing: Style.metrics.spacing

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 4
            color: root.checked ? root.color : "transparent"
            border.width: root.checked ? 0 : 1.5
            border.color: Style.palette.mute
        }

        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            font: Style.sans(13, Style.Medium)
            color: root.checked ? Style.palette.primaryText : Style.palette.strongMute
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: root.cornerRadius
        color: root.checked || root.hovered ? Style.palette.cardSubtle : "transparent"
        border.width: 1
        border.color: root.checked ? Style.palette.mute : Style.palette.stroke
    }
}
