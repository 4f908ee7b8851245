import QtQuick
import Tidewatch.Ui

/*! A small value below its title. */
Column {
    id: root

    required property string title
    required property string value

    spacing: 4
    Accessible.role: Accessible.StaticText
    Accessible.name: root.title + ": " + root.value

    PlainText {
        text: root.title
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
    PlainText {
        text: root.value
        font: Style.mono(20, Style.Light)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
}
