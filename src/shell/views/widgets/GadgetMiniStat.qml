import QtQuick
import Tidewatch.Ui

/*! A small figure below its title. */
Column {
    id: root

    /*! Pixels per point, and the colours of the gadget. */
    required property real unit
    required property color ink
    required property color quiet
    required property string title
    required property string value
    property int alignment: Text.AlignLeft

    width: 90 * unit
    Accessible.role: Accessible.StaticText
    Accessible.name: title + ": " + value

    PlainText {
        width: parent.width
        text: root.title
        font: Style.tracked(Style.sans(8 * root.unit, Style.Medium), 0.8 * root.unit)
        color: root.quiet
        horizontalAlignment: root.alignment
        Accessible.ignored: true
    }
    GadgetFigure {
        objectName: "value"
        width: parent.width
        text: root.value
        font: Style.mono(16 * root.unit, Style.Regular)
        color: root.ink
        horizontalAlignment: root.alignment
        Accessible.ignored: true
    }
}
