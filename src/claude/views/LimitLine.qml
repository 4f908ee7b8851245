import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! A limit of the plan: its name and use, a bar, and below it when it begins anew. */
ColumnLayout {
    id: root

    required property claudeLimit limit

    spacing: 5
    Accessible.role: Accessible.StaticText
    Accessible.name: limit.accessibleText

    RowLayout {
        Layout.fillWidth: true

        PlainText {
            Layout.fillWidth: true
            text: root.limit.label
            font: Style.sans(12, Style.Medium)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            text: root.limit.value
            font: Style.sans(11, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
    }
    Meter {
        Layout.fillWidth: true
        fraction: root.limit.fraction
        color: root.limit.color
        track: Style.palette.stroke
    }
    PlainText {
        Layout.fillWidth: true
        text: root.limit.reset
        wrapMode: Text.WordWrap
        font: Style.sans(11, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
    PlainText {
        Layout.fillWidth: true
        visible: text !== ""
        text: root.limit.remark
        wrapMode: Text.WordWrap
        font: Style.sans(11, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
}
