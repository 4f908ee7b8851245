import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! An application with its icon and its time over a bar. */
Item {
    id: root

    /*! Pixels per point, and the colours of the gadget. */
    required property real unit
    required property color ink
    required property color quiet
    required property gadgetApp row

    height: meter.y + meter.height
    Accessible.role: Accessible.ListItem
    Accessible.name: row.app.accessibleText

    AppIconView {
        id: icon

        anchors.verticalCenter: name.verticalCenter
        width: side
        height: side
        iconName: root.row.app.iconName
        symbolName: root.row.app.symbolName
        color: root.quiet
        side: 14 * root.unit
    }
    NameText {
        id: name

        objectName: "name"
        anchors.left: icon.right
        anchors.leftMargin: 6 * root.unit
        anchors.right: time.left
        anchors.rightMargin: 6 * root.unit
        text: root.row.app.name
        font: Style.sans(13 * root.unit, Style.Regular)
        color: root.ink
        Accessible.ignored: true
    }
    PlainText {
        id: time

        objectName: "time"
        anchors.right: parent.right
        anchors.baseline: name.baseline
        text: root.row.app.time
        font: Style.mono(12 * root.unit, Style.Regular)
        color: root.quiet
        Accessible.ignored: true
    }
    Meter {
        id: meter

        y: name.height + 3 * root.unit
        width: parent.width
        height: 4 * root.unit
        fraction: root.row.fraction
        color: root.row.app.color
    }
}
