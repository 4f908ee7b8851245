import QtQuick
import Tidewatch.Ui

/*! A rate of the network, with the direction of its bytes. */
Item {
    id: root

    /*! Pixels per point, and the colours of the gadget. */
    required property real unit
    required property color ink
    required property color ground
    required property string symbol
    required property color color
    required property string value

    width: 66 * unit
    height: figure.height
    baselineOffset: figure.baselineOffset

    GadgetFigure {
        id: figure

        objectName: "rate"
        anchors.right: parent.right
        width: parent.width - arrow.width
        text: root.value
        font: Style.mono(10 * root.unit, Style.Regular)
        color: root.ink
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
    Symbol {
        id: arrow

        x: figure.x + figure.width - figure.contentWidth - width
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        side: 10 * root.unit
        color: Style.legibleOn(root.ground, root.color)
    }
}
