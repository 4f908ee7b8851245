import QtQuick
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The time used of ten minutes as a bar in the colour of its main tier. */
Item {
    id: root

    required property bucketCell bucket

    implicitWidth: 12
    implicitHeight: 22
    Accessible.role: Accessible.StaticText
    Accessible.name: root.bucket.accessibleText
    Accessible.ignored: !root.bucket.filled

    Rectangle {
        objectName: "track"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        width: 10
        height: 22
        radius: 2
        color: Style.palette.stroke
    }
    Rectangle {
        objectName: "bar"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        visible: root.bucket.filled
        width: 8
        height: root.bucket.height
        radius: Math.min(2, height / 2)
        color: root.bucket.color
    }
}
