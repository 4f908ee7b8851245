import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! Shown instead of content while there is none. */
ColumnLayout {
    id: root

    required property string symbol
    required property string title
    property string text: ""

    spacing: 10

    Symbol {
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: 40
        name: root.symbol
        side: 36
        color: Style.palette.muteSoft
    }
    AccessibleText {
        Layout.fillWidth: true
        Layout.bottomMargin: root.text === "" ? 40 : 0
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: root.title
        font: Style.sans(14, Style.Medium)
        color: Style.palette.secondaryText
    }
    AccessibleText {
        Layout.fillWidth: true
        Layout.bottomMargin: 40
        visible: root.text !== ""
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: root.text
        font: Style.sans(13, Style.Regular)
        color: Style.palette.secondaryText
    }
}
