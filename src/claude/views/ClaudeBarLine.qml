import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! A name and its figure with a bar below, and perhaps a line of details. */
ColumnLayout {
    id: root

    required property claudeBar row
    property color valueColor: Style.palette.secondaryText

    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: row.accessibleText

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.metrics.spacing

        NameText {
            text: root.row.label
            Layout.fillWidth: root.row.mark === ""
            font: Style.sans(14, Style.Medium)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            Layout.fillWidth: true
            visible: root.row.mark !== ""
            text: root.row.mark
            font: Style.sans(13, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
        PlainText {
            objectName: "value"
            text: root.row.value
            font: Style.mono(13, Style.Regular)
            color: root.valueColor
            Accessible.ignored: true
        }
    }
    PlainText {
        Layout.fillWidth: true
        visible: root.row.details !== ""
        text: root.row.details
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
        elide: Text.ElideRight
        Accessible.ignored: true
    }
    Meter {
        Layout.fillWidth: true
        fraction: root.row.fraction
        color: root.row.color
        track: Style.palette.stroke
    }
}
