import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! A volume: its name and use, a bar, and how much is free. */
ColumnLayout {
    id: root

    required property systemVolume row

    spacing: 6
    Accessible.role: Accessible.StaticText
    Accessible.name: row.accessibleText

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.metrics.spacing

        NameText {
            Layout.fillWidth: true
            text: root.row.name
            font: Style.sans(14, Style.Medium)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            text: root.row.usedShare
            font: Style.mono(13, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
    }
    Meter {
        Layout.fillWidth: true
        fraction: root.row.fraction
        color: root.row.color
        track: Style.palette.stroke
    }
    PlainText {
        Layout.fillWidth: true
        text: root.row.freeOfTotal
        elide: Text.ElideRight
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
}
