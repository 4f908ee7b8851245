import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! A rate with the direction of its bytes. */
RowLayout {
    id: root

    required property string symbol
    required property color color
    required property string label
    required property string value

    spacing: 10
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    Symbol {
        name: root.symbol
        side: 18
        color: Style.legibleOn(Style.palette.textGround, root.color)
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2

        PlainText {
            Layout.fillWidth: true
            text: root.label
            elide: Text.ElideRight
            font: Style.sans(12, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
        PlainText {
            Layout.fillWidth: true
            text: root.value
            elide: Text.ElideRight
            font: Style.mono(18, Style.Light)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
    }
}
