pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day's time of a project, or the untagged time, with its applications. */
Card {
    id: root

    required property projectSheet row

    accessibleRole: Accessible.ListItem
    accessibleText: root.row.accessibleText

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        RowLayout {
            Layout.fillWidth: true
            spacing: 12

            Rectangle {
                Layout.preferredWidth: 12
                Layout.preferredHeight: 12
                radius: 6
                color: root.row.color
            }
            NameText {
                objectName: "title"
                Layout.fillWidth: true
                visible: root.row.tagged
                text: root.row.title
                font: Style.sans(16, Style.Medium)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            Heading {
                Layout.fillWidth: true
                visible: !root.row.tagged
                text: root.row.title
            }
            PlainText {
                objectName: "time"
                text: root.row.time
                font: Style.mono(20, Style.Light)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            PlainText {
                objectName: "share"
                Layout.preferredWidth: 48
                horizontalAlignment: Text.AlignRight
                text: root.row.share
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
            Accessible.ignored: true
        }
        AccessibleText {
            Layout.fillWidth: true
            visible: root.row.note !== ""
            text: root.row.note
            wrapMode: Text.WordWrap
            font: Style.sans(13, Style.Regular)
            color: Style.palette.secondaryText
        }
        GridLayout {
            Layout.fillWidth: true
            visible: root.row.apps.length > 0
            columns: 2
            columnSpacing: 40
            rowSpacing: 8

            Repeater {
                model: root.row.apps
                delegate: AppLine {
                    required property appRow modelData

                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    app: modelData
                    dotted: true
                }
            }
        }
    }
}
