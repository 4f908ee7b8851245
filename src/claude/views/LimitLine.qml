import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! A limit of the plan: title and share, a bar, and two remarks below it. */
ColumnLayout {
    id: root

    required property string title
    required property string figures
    required property real fraction
    required property color color
    required property string remark
    required property string reset

    spacing: 5
    Accessible.role: Accessible.StaticText
    Accessible.name: title + ": " + figures + ", " + remark + " " + reset

    RowLayout {
        Layout.fillWidth: true

        PlainText {
            Layout.fillWidth: true
            text: root.title
            font: Style.sans(12, Style.Medium)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            text: root.figures
            font: Style.sans(11, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
    }
    Meter {
        Layout.fillWidth: true
        fraction: root.fraction
        color: root.color
        track: Style.palette.stroke
    }
    PlainText {
        Layout.fillWidth: true
        visible: text !== ""
        text: root.remark
        wrapMode: Text.WordWrap
        font: Style.sans(11, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
    PlainText {
        Layout.fillWidth: true
        text: root.reset
        wrapMode: Text.WordWrap
        font: Style.sans(11, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
}
