import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! A heavy folder: its size as a bar, and a button to show it. */
FocusScope {
    id: root

    required property diskRow row
    property string revealText

    signal revealed

    implicitHeight: 44
    Accessible.role: Accessible.ListItem
    Accessible.name: row.accessibleText

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 4
        spacing: 12

        Symbol {
            name: "folder"
            side: 20
            color: Style.palette.mute
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 5

            RowLayout {
                Layout.fillWidth: true
                spacing: 12

                NameText {
                    Layout.fillWidth: true
                    text: root.row.name
                    elide: Text.ElideMiddle
                    font: Style.sans(14, Style.Regular)
                    color: Style.palette.primaryText
                    Accessible.ignored: true
                }
                PlainText {
                    text: root.row.size
                    font: Style.mono(13, Style.Regular)
                    color: Style.palette.primaryText
                    Accessible.ignored: true
                }
            }
            Meter {
                Layout.fillWidth: true
                implicitHeight: 4
                fraction: root.row.fraction
                color: Style.palette.amber
            }
        }
        IconButton {
            objectName: "revealFolder"
            focus: true
            symbol: "arrow.right.circle"
            accessibleName: root.revealText + ": " + root.row.name
            onClicked: root.revealed()
        }
    }
}
