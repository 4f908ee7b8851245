pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! The speed test of the line; the compact one has no figures beside the gauge. */
Card {
    id: root

    required property SpeedTestPresenter presenter
    property bool compact: false

    padding: compact ? 12 : 20

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        GridLayout {
            Layout.fillWidth: true
            // The button is below the title where there is no room beside it.
            columns: root.compact ? 2 : 3
            columnSpacing: Style.metrics.spacing
            rowSpacing: Style.metrics.spacing

            Symbol {
                name: "speedometer"
                side: 16
                color: Style.palette.mute
            }
            Heading {
                Layout.fillWidth: true
                text: root.compact ? root.presenter.compactTitle : root.presenter.title
            }
            TextButton {
                objectName: "speedButton"
                Layout.columnSpan: root.compact ? 2 : 1
                Layout.fillWidth: root.compact
                implicitHeight: 34
                primary: !root.presenter.isRunning
                text: root.presenter.buttonText
                onClicked: root.presenter.press()
            }
        }
        SpeedGauge {
            objectName: "gauge"
            Layout.fillWidth: true
            size: root.compact ? 150 : 210
            value: root.presenter.value
            scaleMax: root.presenter.scaleMax
            valueText: root.presenter.valueText
            caption: root.presenter.caption
            subline: root.presenter.status
        }
        RowLayout {
            Layout.fillWidth: true
            visible: !root.compact
            spacing: Style.metrics.wideSpacing

            Repeater {
                model: root.compact ? null : root.presenter.stats
                delegate: Stat {
                    required property systemFigure row

                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    title: row.label
                    value: row.value
                }
            }
        }
        // Keeps its place, so that nothing moves when a test begins and ends.
        Meter {
            objectName: "progress"
            Layout.fillWidth: true
            opacity: root.presenter.isRunning ? 1 : 0
            fraction: root.presenter.progress
            color: Style.palette.tierProductive
            accessibleName: root.presenter.isRunning ? root.presenter.progressTitle : ""
            valueText: root.presenter.progressText
        }
    }
}
