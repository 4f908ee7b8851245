import QtQuick
import Tidewatch.Ui

/*! Shows that a control has keyboard focus. Place it over the control with `shown: visualFocus`. */
Rectangle {
    id: root

    property bool shown: false

    /*! The radius of the control. */
    property real controlRadius: Style.metrics.controlRadius

    /*! The gap between the control and the ring. */
    property real gap: 2

    readonly property int line: 2

    anchors.fill: parent
    anchors.margins: -(gap + line)
    visible: shown
    color: "transparent"
    radius: controlRadius + gap + line
    border.width: line
    border.color: Style.palette.strongMute
    Accessible.ignored: true
}
