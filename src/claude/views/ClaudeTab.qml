import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! What the logs of Claude Code say about this month and the months before. */
TabPane {
    id: root

    required property ClaudePresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        Band {
            Layout.fillWidth: true

            RowLayout {
                anchors.fill: parent
                spacing: Style.metrics.spacing

                Symbol {
                    name: "sparkle"
                    side: 20
                    color: Style.palette.amber
                }
                AccessibleText {
                    text: root.presenter.title
                    font: Style.sans(18, Style.Semibold)
                    color: Style.palette.primaryText
                }
                AccessibleText {
                    objectName: "updated"
                    Layout.leftMargin: 8
                    Layout.fillWidth: true
                    text: root.presenter.updated
                    elide: Text.ElideRight
                    font: Style.sans(12, Style.Regular)
                    color: Style.palette.secondaryText
                }
                AccessibleText {
                    id: scanning

                    objectName: "scanning"
                    Layout.rightMargin: 8
                    visible: false
                    text: root.presenter.scanning
                    font: Style.sans(12, Style.Regular)
                    color: Style.palette.secondaryText

                    // Most scans end before anybody could read it.
                    Timer {
                        interval: 400
                        running: root.presenter.isScanning
                        onTriggered: scanning.visible = true
                        onRunningChanged: {
                            if (running)
                                scanning.visible = false;
                        }
                    }
                    Connections {
                        target: root.presenter

                        function onScanningChanged() {
                            if (!root.presenter.isScanning)
                                scanning.visible = false;
                        }
                    }
                }
                SegmentedPicker {
                    objectName: "ranges"
                    labels: root.presenter.ranges
                    currentIndex: root.presenter.rangeIndex
                    accessibleName: "Período"
                    onActivated: index => root.presenter.selectRange(index)
                }
            }
        }
        Card {
            Layout.fillWidth: true
            visible: root.presenter.hasNoLogs

            EmptyState {
                anchors.fill: parent
                objectName: "empty"
                symbol: "sparkle"
                title: root.presenter.noLogsTitle
                text: root.presenter.noLogsText
            }
        }
        Card {
            Layout.fillWidth: true
            visible: root.presenter.note !== ""

            RowLayout {
                anchors.fill: parent
                spacing: 12

                Symbol {
                    name: "calendar"
                    side: 18
                    color: Style.palette.mute
                }
                AccessibleText {
                    objectName: "note"
                    Layout.fillWidth: true
                    text: root.presenter.note
                    wrapMode: Text.WordWrap
                    font: Style.sans(13, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
        }
        ClaudeValue {
            Layout.fillWidth: true
            visible: !root.presenter.hasNoLogs
            presenter: root.presenter
        }
        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: Style.metrics.wideSpacing
            rowSpacing: Style.metrics.wideSpacing

            ClaudeTokens {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                visible: !root.presenter.hasNoLogs
                presenter: root.presenter
            }
            ClaudePlan {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                presenter: root.presenter
            }
        }
        ClaudeModels {
            Layout.fillWidth: true
            visible: !root.presenter.hasNoLogs
            presenter: root.presenter
        }
        ClaudeMonths {
            Layout.fillWidth: true
            visible: !root.presenter.hasNoLogs
            presenter: root.presenter
        }
    }
}
