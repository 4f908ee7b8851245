import QtQuick
import Tidewatch.Ui

/*! A button with text and an optional symbol before it. */
PressButton {
    id: root

    property string symbol

    /*! Whether it is the view's primary action. */
    property bool primary: false

    property real textSize: 14

    readonly property color ink: {
        if (primary)
            return Style.palette.onFill;
        return enabled ? Style.palette.primaryText : Style.palette.muteSoft;
    }

    implicitWidth: implicitContentWidth + 36
    implicitHeight: 36
    // A wider button centres its content.
    horizontalPadding: Math.round((width - implicitContentWidth) / 2)
    cornerRadius: Style.metrics.chipRadius
    opacity: primary && !enabled ? 0.45 : 1

    contentItem: Row {
        spacing: Style.metrics.spacing

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            name: root.symbol
            side: 18
            color: root.ink
        }

        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            font: Style.sans(root.textSize, root.primary ? Style.Semibold : Style.Medium)
            color: root.ink
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        readonly property color fill: Style.palette.tierProductive

        radius: root.cornerRadius
        color: {
            if (root.primary)
                return root.hovered || root.down ? Qt.darker(fill, root.down ? 1.15 : 1.06) : fill;
            return root.enabled && (root.hovered || root.down) ? Style.palette.cardSubtle : "transparent";
        }
        border.width: root.primary ? 0 : 1
        border.color: root.down ? Style.palette.mute : Style.palette.stroke
    }
}
