import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! What all buttons have in common: the keyboard, the pointer, the ring of the focus, and a name. */
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
    // The toolkit does not tell it by itself.
    Accessible.description: enabled ? "" : "no disponible"
    Accessible.ignored: !visible
    // By the bus a control can be pressed that the pointer and the keyboard cannot.
    Accessible.onPressAction: {
        if (enabled)
            clicked();
    }

    // The space bar alone comes with the template.
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
