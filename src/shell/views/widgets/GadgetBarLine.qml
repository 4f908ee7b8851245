import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! A label and its figure over a bar. */
Item {
    id: root

    /*! Pixels per point, and the colours of the gadget. */
    required property real unit
    required property color ink
    required property color quiet
    required property gadgetBar row
    property real textSize: 10
    property real thickness: 3

    implicitHeight: meter.y + meter.height
    Accessible.role: Accessible.StaticText
    Accessible.name: row.accessibleText

    PlainText {
        id: label

        text: root.row.label
        font: Style.sans(root.textSize * root.unit, Style.Regular)
        color: root.quiet
        Accessible.ignored: true
    }
    GadgetFigure {
        objectName: "value"
        anchors.left: label.right
        anchors.leftMargin: 8 * root.unit
        anchors.right: parent.right
        anchors.baseline: label.baseline
        text: root.row.value
        font: Style.mono(root.textSize * root.unit, Style.Regular)
        color: root.ink
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
    Meter {
        id: meter

        y: label.height + root.unit
        width: parent.width
        height: root.thickness * root.unit
        fraction: root.row.fraction
        color: root.row.color
    }
}
