import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! A card with a value below its symbol and title. */
Card {
    id: root

    required property statTile row

    accessibleText: row.title + ": " + row.value + ", " + row.subtitle

    ColumnLayout {
        anchors.fill: parent
        spacing: 4

        RowLayout {
            spacing: Style.metrics.spacing

            Symbol {
                name: root.row.symbol
                side: 14
                color: Style.palette.mute
            }
            Heading {
                Layout.fillWidth: true
                text: root.row.title
            }
        }
        PlainText {
            Layout.fillWidth: true
            Layout.topMargin: 4
            text: root.row.value
            elide: Text.ElideRight
            font: Style.mono(24, Style.Light)
            color: Style.palette.primaryText
        }
        PlainText {
            Layout.fillWidth: true
            text: root.row.subtitle
            elide: Text.ElideRight
            font: Style.sans(12, Style.Regular)
            color: Style.palette.secondaryText
        }
    }
}
