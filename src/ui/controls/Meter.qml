import QtQuick
import Tidewatch.Ui

/*! A thin bar, filled from the left. Without a name it only illustrates a figure beside it. */
Item {
    id: root

    /*! From 0 to 1; what lies outside is brought inside. */
    property real fraction: 0
    property color color: Style.palette.tierProductive
    property color track: Style.palette.stroke
    property string accessibleName

    /*! The figure in words, for those who cannot see the bar. */
    property string valueText

    readonly property real filled: Math.min(1, Math.max(0, fraction))

    implicitWidth: 120
    implicitHeight: 6

    Accessible.role: Accessible.ProgressBar
    Accessible.name: accessibleName
    Accessible.description: valueText
    Accessible.ignored: accessibleName === ""

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.track
    }

    Rectangle {
        objectName: "fill"
        visible: root.filled > 0
        // Never shorter than its own round ends.
        width: Math.max(height, Math.round(parent.width * root.filled))
        height: parent.height
        radius: height / 2
        color: root.color
    }
}
