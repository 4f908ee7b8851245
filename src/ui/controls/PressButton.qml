import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! The base of all buttons: keyboard, pointer, focus ring and accessible name. */
T.AbstractButton {
    id: root

    property string accessibleName: text
    property real cornerRadius: Style.metrics.controlRadius

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 30
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    // The toolkit does not report it by itself.
    Accessible.description: enabled ? "" : "no disponible"
    Accessible.ignored: !visible
    // The accessibility bus can press controls that the pointer and keyboard cannot.
    Accessible.onPressAction: {
        if (enabled)
            clicked();
    }

    // The template only handles the space bar.
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        radius: root.cornerRadius
        color: root.enabled && (root.hovered || root.down) ? Style.palette.cardSubtle : "transparent"
    }

    FocusRing {
        shown: root.visualFocus
        controlRadius: root.cornerRadius
    }
}
