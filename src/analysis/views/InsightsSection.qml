pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The insights: the longest session and the figures of a range of days. */
ColumnLayout {
    id: root

    required property InsightsPresenter presenter

    spacing: Style.metrics.wideSpacing

    Band {
        Layout.fillWidth: true

        RowLayout {
            anchors.fill: parent

            Heading {
                Layout.fillWidth: true
                text: root.presenter.title
            }
            SegmentedPicker {
                objectName: "ranges"
                labels: root.presenter.ranges
                currentIndex: root.presenter.rangeIndex
                accessibleName: "Rango"
                onActivated: index => root.presenter.selectRange(index)
            }
        }
    }
    Card {
        objectName: "session"
        Layout.fillWidth: true
        accessibleText: root.presenter.sessionAccessibleText

        ColumnLayout {
            anchors.fill: parent
            spacing: Style.metrics.spacing

            RowLayout {
                spacing: Style.metrics.spacing

                Symbol {
                    name: "flame.fill"
                    side: 16
                    color: Style.palette.amber
                }
                Heading {
                    Layout.fillWidth: true
                    text: root.presenter.sessionTitle
                }
            }
            PlainText {
                Layout.fillWidth: true
                visible: !root.presenter.hasSession
                text: root.presenter.noSession
                wrapMode: Text.WordWrap
                font: Style.sans(13, Style.Regular)
                color: Style.palette.secondaryText
            }
            RowLayout {
                visible: root.presenter.hasSession
                spacing: Style.metrics.spacing

                PlainText {
                    objectName: "sessionLength"
                    Layout.rightMargin: 16
                    text: root.presenter.sessionLength
                    font: Style.mono(28, Style.Light)
                    color: Style.palette.primaryText
                }
                Symbol {
                    name: "calendar"
                    side: 16
                    color: Style.palette.mute
                }
                PlainText {
                    objectName: "sessionDay"
                    Layout.rightMargin: 16
                    text: root.presenter.sessionDay
                    font: Style.mono(13, Style.Regular)
                    color: Style.palette.secondaryText
                }
                Symbol {
                    name: "clock"
                    side: 16
                    color: Style.palette.mute
                }
                PlainText {
                    objectName: "sessionTimes"
                    text: root.presenter.sessionTimes
                    font: Style.mono(13, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
        }
    }
    GridLayout {
        Layout.fillWidth: true
        columns: 3
        columnSpacing: Style.metrics.wideSpacing
        rowSpacing: Style.metrics.wideSpacing

        Repeater {
            model: root.presenter.tiles
            delegate: StatTile {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
            }
        }
    }
}
