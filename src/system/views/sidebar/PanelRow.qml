import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! A row of the overview, which opens a panel. */
PressButton {
    id: root

    required property systemPanelRow row

    implicitHeight: 44
    leftPadding: 6
    rightPadding: 0
    cornerRadius: Style.metrics.chipRadius
    text: row.label
    accessibleName: row.accessibleText

    contentItem: RowLayout {
        spacing: 8

        Symbol {
            name: root.row.symbol
            side: 18
            color: Style.palette.mute
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1

            PlainText {
                Layout.fillWidth: true
                text: root.row.label
                elide: Text.ElideRight
                font: Style.sans(12, Style.Medium)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 6

                PlainText {
                    objectName: "value"
                    text: root.row.value
                    font: Style.sans(11, Style.Medium)
                    color: root.row.color.valid ? Style.legibleOn(Style.palette.textGround, root.row.color) : Style.palette.secondaryText
                    Accessible.ignored: true
                }
                NameText {
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignRight
                    text: root.row.details
                    font: Style.sans(11, Style.Regular)
                    color: Style.palette.secondaryText
                    Accessible.ignored: true
                }
            }
        }
        Symbol {
            name: "chevron.right"
            side: 14
            color: root.hovered ? Style.palette.primaryText : Style.palette.mute
        }
    }
}
