import QtQuick
import Tidewatch.Ui

/*! A flat button: only its text. */
PressButton {
    id: root

    horizontalPadding: 8

    contentItem: PlainText {
        text: root.text
        font: Style.sans(13, Style.Medium)
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignHCenter
        color: {
            if (!root.enabled)
                return Style.palette.muteSoft;
            return root.hovered || root.down ? Style.palette.primaryText : Style.palette.strongMute;
        }
        Accessible.ignored: true
    }
}
