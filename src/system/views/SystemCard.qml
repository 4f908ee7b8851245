import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! A card with a symbol and a title; what it shows stands below. */
Card {
    id: root

    required property string symbol
    required property string title

    default property alias content: column.data

    ColumnLayout {
        id: column

        // Not filling it: a card that is higher than its content leaves the rest empty.
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: 10

        RowLayout {
            Layout.fillWidth: true
            spacing: Style.metrics.spacing

            Symbol {
                name: root.symbol
                side: 16
                color: Style.palette.mute
            }
            Heading {
                Layout.fillWidth: true
                text: root.title
            }
        }
    }
}
