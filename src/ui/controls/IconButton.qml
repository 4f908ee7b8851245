import QtQuick
import Tidewatch.Ui

/*! A button with only a symbol. */
PressButton {
    id: root

    required property string symbol
    property real symbolSide: 20

    implicitWidth: 30

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            side: root.symbolSide
            color: {
                if (!root.enabled)
                    return Style.palette.muteSoft;
                return root.hovered || root.down ? Style.palette.primaryText : Style.palette.strongMute;
            }
        }
    }
}
