pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! The load of the machine: a card per source, and the speed test of the line. */
TabPane {
    id: root

    required property SystemTabPresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        GridLayout {
            Layout.fillWidth: true
            columns: 2
            columnSpacing: Style.metrics.wideSpacing
            rowSpacing: Style.metrics.wideSpacing

            SystemCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                symbol: "cpu"
                title: root.presenter.cpuTitle

                AccessibleText {
                    objectName: "cpu"
                    Layout.fillWidth: true
                    text: root.presenter.cpu
                    font: Style.mono(40, Style.Light)
                    color: Style.palette.primaryText
                }
                Meter {
                    Layout.fillWidth: true
                    fraction: root.presenter.cpuFraction
                    color: root.presenter.cpuColor
                    accessibleName: root.presenter.cpuTitle
                    valueText: root.presenter.cpu
                }
                Repeater {
                    model: root.presenter.cpuParts
                    delegate: FigureLine {
                        required property systemFigure row

                        Layout.fillWidth: true
                        label: row.label
                        value: row.value
                    }
                }
            }
            SystemCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                symbol: "memorychip"
                title: root.presenter.memoryTitle

                RowLayout {
                    Layout.fillWidth: true
                    spacing: 12

                    AccessibleText {
                        objectName: "memory"
                        text: root.presenter.memory
                        font: Style.mono(40, Style.Light)
                        color: Style.palette.primaryText
                    }
                    AccessibleText {
                        objectName: "memoryUse"
                        Layout.fillWidth: true
                        Layout.alignment: Qt.AlignBottom
                        Layout.bottomMargin: 8
                        text: root.presenter.memoryUse
                        elide: Text.ElideRight
                        font: Style.sans(13, Style.Regular)
                        color: Style.palette.secondaryText
                    }
                }
                Meter {
                    Layout.fillWidth: true
                    fraction: root.presenter.memoryFraction
                    color: Style.palette.tierNeutral
                    accessibleName: root.presenter.memoryTitle
                    valueText: root.presenter.memory
                }
                Repeater {
                    model: root.presenter.memoryParts
                    delegate: FigureLine {
                        required property systemFigure row

                        Layout.fillWidth: true
                        label: row.label
                        value: row.value
                    }
                }
            }
            SystemCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                symbol: root.presenter.networkSymbol
                title: root.presenter.networkTitle

                RowLayout {
                    Layout.fillWidth: true
                    spacing: 12

                    AccessibleText {
                        objectName: "network"
                        Layout.fillWidth: true
                        text: root.presenter.network
                        elide: Text.ElideRight
                        font: Style.sans(16, Style.Medium)
                        color: Style.palette.primaryText
                    }
                    AccessibleText {
                        objectName: "signal"
                        visible: text !== ""
                        text: root.presenter.signal
                        font: Style.mono(13, Style.Regular)
                        color: Style.palette.secondaryText
                    }
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: Style.metrics.wideSpacing

                    TrafficFigure {
                        objectName: "download"
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        symbol: "arrow.down"
                        color: Style.palette.tierProductive
                        label: root.presenter.downloadTitle
                        value: root.presenter.download
                    }
                    TrafficFigure {
                        objectName: "upload"
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        symbol: "arrow.up"
                        color: Style.palette.tierNeutral
                        label: root.presenter.uploadTitle
                        value: root.presenter.upload
                    }
                }
            }
            SystemCard {
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                symbol: "cube.transparent"
                title: root.presenter.gpuTitle

                AccessibleText {
                    objectName: "gpu"
                    Layout.fillWidth: true
                    visible: root.presenter.hasGpu
                    text: root.presenter.gpu
                    font: Style.mono(40, Style.Light)
                    color: Style.palette.primaryText
                }
                Meter {
                    Layout.fillWidth: true
                    visible: root.presenter.hasGpu
                    fraction: root.presenter.gpuFraction
                    color: Style.palette.tierNeutral
                    accessibleName: root.presenter.hasGpu ? root.presenter.gpuTitle : ""
                    valueText: root.presenter.gpu
                }
                AccessibleText {
                    objectName: "gpuText"
                    Layout.fillWidth: true
                    text: root.presenter.gpuText
                    wrapMode: Text.WordWrap
                    font: Style.sans(13, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
        }
        SystemCard {
            Layout.fillWidth: true
            symbol: "internaldrive"
            title: root.presenter.disksTitle

            AccessibleText {
                objectName: "noDisks"
                Layout.fillWidth: true
                visible: !root.presenter.hasDisks
                text: root.presenter.noDisks
                font: Style.sans(13, Style.Regular)
                color: Style.palette.secondaryText
            }
            Repeater {
                model: root.presenter.disks
                delegate: VolumeLine {
                    Layout.fillWidth: true
                    Layout.topMargin: 4
                }
            }
        }
        SpeedTestView {
            objectName: "speedTest"
            Layout.fillWidth: true
            presenter: root.presenter.speedTest
        }
    }
}
