import QtQuick
import Tidewatch.Style

/*! A thin bar, filled from the left. Without a name it only illustrates a figure beside it. */
Item {
    id: root

    /*! From 0 to 1; what lies outside is brought inside. */
    property real fraction: 0
    property color color: Style.palette.tierProductive
    property color track: Style.palette.stroke
    property string accessibleName

    readonly property real value: Math.min(1, Math.max(0, fraction))
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1

    implicitWidth: 120
    implicitHeight: 6

    Accessible.role: Accessible.ProgressBar
    Accessible.name: accessibleName
    Accessible.ignored: accessibleName === ""

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.track
    }

    Rectangle {
        objectName: "fill"
        visible: root.value > 0
        // Never shorter than its own round ends.
        width: Math.max(height, Math.round(parent.width * root.value))
        height: parent.height
        radius: height / 2
        color: root.color
    }
}
