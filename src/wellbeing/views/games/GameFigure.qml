import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! A labelled number under a board. */
Row {
    id: root

    required property gameNumber number

    spacing: 3
    Accessible.role: Accessible.StaticText
    Accessible.name: number.accessibleText
    Accessible.ignored: !visible

    PlainText {
        anchors.baseline: value.baseline
        text: root.number.title
        font: Style.sans(8, Style.Medium)
        color: Style.legibleOn(Style.palette.textGround, Style.palette.mute)
    }

    PlainText {
        id: value

        text: root.number.value
        font: Style.mono(10, Style.Medium)
        color: Style.palette.primaryText
    }
}
