import QtQuick
import Tidewatch.Ui

/*! The header of a gadget: its symbol and its title. */
Row {
    id: root

    required property string symbol
    required property string title
    required property color color

    /*! Pixels per point. */
    required property real unit

    height: 10 * unit
    spacing: 5 * unit
    Accessible.role: Accessible.Heading
    Accessible.name: title

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        side: 9 * root.unit
        color: root.color
    }
    PlainText {
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        font: Style.tracked(Style.serif(7.5 * root.unit, Style.Medium), 1.8 * root.unit)
        color: root.color
        Accessible.ignored: true
    }
}
