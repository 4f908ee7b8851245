import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! A labelled number under a board. */
Row {
    id: root

    required property gameNumber number

    /*! Pixels per point of the layout. */
    property real unit: 1

    spacing: 3 * unit
    Accessible.role: Accessible.StaticText
    Accessible.name: number.accessibleText
    Accessible.ignored: !visible

    PlainText {
        anchors.baseline: value.baseline
        text: root.number.title
        font: Style.sans(8 * root.unit, Style.Medium)
        color: Style.legibleOn(Style.palette.textGround, Style.palette.mute)
    }

    PlainText {
        id: value

        text: root.number.value
        font: Style.mono(10 * root.unit, Style.Medium)
        color: Style.palette.primaryText
    }
}
