pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day's 24 hours as stacked bars by tier. */
Card {
    id: root

    required property OverviewPresenter presenter

    accessibleRole: Accessible.Chart
    accessibleText: root.presenter.hoursAccessibleText

    ColumnLayout {
        anchors.fill: parent
        spacing: 16

        Heading {
            text: root.presenter.hoursTitle
        }
        Row {
            id: chart

            Layout.fillWidth: true
            Layout.fillHeight: true

            Repeater {
                model: root.presenter.hours
                delegate: Item {
                    id: hour

                    required property hourBar row

                    width: chart.width / 24
                    height: chart.height
                    Accessible.role: Accessible.StaticText
                    Accessible.name: row.accessibleText

                    Rectangle {
                        id: bar

                        anchors.bottom: label.top
                        anchors.bottomMargin: 8
                        anchors.horizontalCenter: parent.horizontalCenter
                        width: Math.min(18, parent.width - 6)
                        height: (parent.height - label.height - 8) * hour.row.height
                        radius: 2
                        color: Style.palette.stroke
                    }
                    Rectangle {
                        id: productive

                        anchors.left: bar.left
                        anchors.right: bar.right
                        anchors.bottom: bar.bottom
                        height: bar.height * hour.row.productive
                        radius: 2
                        color: Style.palette.tierProductive
                    }
                    Rectangle {
                        id: neutral

                        anchors.left: bar.left
                        anchors.right: bar.right
                        anchors.bottom: productive.top
                        height: bar.height * hour.row.neutral
                        radius: 2
                        color: Style.palette.tierNeutral
                    }
                    Rectangle {
                        anchors.left: bar.left
                        anchors.right: bar.right
                        anchors.bottom: neutral.top
                        height: bar.height * hour.row.distracting
                        radius: 2
                        color: Style.palette.tierDistracting
                    }
                    PlainText {
                        id: label

                        anchors.bottom: parent.bottom
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: hour.row.label
                        font: Style.mono(10, Style.Regular)
                        color: Style.palette.mute
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
