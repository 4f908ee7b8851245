import QtQuick
import Tidewatch.Ui

/*! A thin progress bar. Without an accessible name it is decorative. */
Item {
    id: root

    /*! 0 to 1, clamped. */
    property real fraction: 0
    property color color: Style.palette.tierProductive
    property color track: Style.palette.stroke
    property string accessibleName

    /*! The value as accessible text. */
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
        // At least as long as its round ends.
        width: Math.max(height, Math.round(parent.width * root.filled))
        height: parent.height
        radius: height / 2
        color: root.color
    }
}
