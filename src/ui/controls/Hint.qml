import QtQuick
import Tidewatch.Ui

/*! A sentence between the cards; without a text it takes no space. */
Band {
    id: root

    required property string text

    visible: root.text !== ""

    AccessibleText {
        anchors.fill: parent
        text: root.text
        wrapMode: Text.WordWrap
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
    }
}
