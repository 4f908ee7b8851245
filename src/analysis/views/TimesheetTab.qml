pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day hour by hour. */
TabPane {
    id: root

    required property TimesheetPresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: 10

        Band {
            Layout.fillWidth: true
            horizontalPadding: 20
            visible: !root.presenter.isEmpty

            RowLayout {
                anchors.fill: parent
                spacing: 28

                Heading {
                    Layout.preferredWidth: 100
                    text: root.presenter.columns[0]
                }
                Heading {
                    Layout.preferredWidth: 176
                    text: root.presenter.columns[1]
                }
                Heading {
                    Layout.fillWidth: true
                    text: root.presenter.columns[2]
                }
            }
        }
        Repeater {
            model: root.presenter.hours
            delegate: HourRow {
                Layout.fillWidth: true
            }
        }
        Card {
            Layout.fillWidth: true
            visible: root.presenter.isEmpty

            EmptyState {
                anchors.fill: parent
                objectName: "empty"
                symbol: "clock"
                title: root.presenter.emptyText
                text: root.presenter.preview
            }
        }
    }
}
