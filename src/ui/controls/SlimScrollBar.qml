import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! A scroll bar that is visible only if there is something to scroll, and fades while idle. */
T.ScrollBar {
    id: root

    /*! Its opacity while idle: it hints that there is more. */
    property real restingOpacity: 0

    padding: 3
    implicitWidth: 12
    minimumSize: 0.06
    hoverEnabled: true
    visible: size < 1

    Accessible.name: "Desplazamiento"
    Accessible.ignored: !visible

    contentItem: Rectangle {
        implicitWidth: 6
        radius: 3
        color: root.pressed || root.hovered ? Style.palette.strongMute : Style.palette.mute
        opacity: root.active ? 0.9 : root.restingOpacity

        Behavior on opacity {
            NumberAnimation {
                duration: root.active ? Style.metrics.quickDuration : 3 * Style.metrics.duration
            }
        }
    }
}
