import QtQuick
import Tidewatch.Ui

/*! Shows that what it lies around has the keyboard. Lay it over the control with `shown: visualFocus`. */
Rectangle {
    id: root

    property bool shown: false

    /*! Of the control inside. */
    property real controlRadius: Style.metrics.controlRadius

    /*! Between the control and the ring. */
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
