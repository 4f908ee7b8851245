pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! An hour of the timesheet: its ten-minute cells, sums and applications. */
Card {
    id: root

    required property hourSheet row

    accessibleRole: Accessible.ListItem
    accessibleText: root.row.accessibleText

    RowLayout {
        anchors.fill: parent
        spacing: 28

        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.preferredWidth: 100
            Layout.maximumWidth: 100
            spacing: 10

            PlainText {
                text: root.row.hour
                font: Style.mono(16, Style.Medium)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            Row {
                spacing: 3

                Repeater {
                    model: root.row.buckets
                    delegate: BucketIndicator {
                        required property bucketCell modelData

                        bucket: modelData
                    }
                }
            }
        }
        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.preferredWidth: 176
            Layout.maximumWidth: 176
            spacing: 6

            Repeater {
                model: root.row.summary
                delegate: TimeLine {
                    required property namedTime modelData

                    Layout.fillWidth: true
                    time: modelData
                }
            }
        }
        GridLayout {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            columns: root.width > 860 ? 2 : 1
            columnSpacing: 28
            rowSpacing: 12

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.preferredWidth: 3
                spacing: 6

                Repeater {
                    model: root.row.activities
                    delegate: AppLine {
                        required property appRow modelData

                        Layout.fillWidth: true
                        app: modelData
                        dotted: true
                    }
                }
            }
            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.preferredWidth: 2
                spacing: 6

                Repeater {
                    model: root.row.categories
                    delegate: TimeLine {
                        required property namedTime modelData

                        Layout.fillWidth: true
                        time: modelData
                    }
                }
            }
        }
    }
}
