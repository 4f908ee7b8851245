import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! A label, and its figure at the right end of the line. */
RowLayout {
    id: root

    required property string label
    required property string value

    spacing: Style.metrics.spacing
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    PlainText {
        Layout.fillWidth: true
        text: root.label
        elide: Text.ElideRight
        font: Style.sans(13, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
    PlainText {
        objectName: "value"
        text: root.value
        font: Style.mono(13, Style.Regular)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
}
