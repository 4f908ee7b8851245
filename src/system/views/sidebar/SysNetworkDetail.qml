pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! The network: its traffic, how the machine is connected, and the speed test of the line. */
DetailPanel {
    id: root

    required property NetworkDetailPresenter presenter

    header: presenter

    Card {
        Layout.fillWidth: true
        padding: 12

        ColumnLayout {
            anchors.fill: parent
            spacing: 12

            TrafficFigure {
                objectName: "download"
                Layout.fillWidth: true
                symbol: "arrow.down"
                color: Style.palette.tierProductive
                label: root.presenter.downloadTitle
                value: root.presenter.download
            }
            TrafficFigure {
                objectName: "upload"
                Layout.fillWidth: true
                symbol: "arrow.up"
                color: Style.palette.tierNeutral
                label: root.presenter.uploadTitle
                value: root.presenter.upload
            }
        }
    }
    Card {
        Layout.fillWidth: true
        padding: 12

        RowLayout {
            anchors.fill: parent
            spacing: 10

            Symbol {
                name: root.presenter.symbol
                side: 18
                color: Style.palette.mute
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                AccessibleText {
                    objectName: "linkName"
                    Layout.fillWidth: true
                    text: root.presenter.linkName
                    wrapMode: Text.Wrap
                    font: Style.sans(13, Style.Medium)
                    color: Style.palette.primaryText
                }
                AccessibleText {
                    objectName: "linkDetails"
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: root.presenter.linkDetails
                    wrapMode: Text.WordWrap
                    font: Style.sans(11, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
        }
    }
    Heading {
        Layout.fillWidth: true
        text: root.presenter.speedTitle
    }
    TextButton {
        objectName: "speedButton"
        Layout.fillWidth: true
        implicitHeight: 34
        primary: !root.presenter.isRunning
        text: root.presenter.buttonText
        onClicked: root.presenter.press()
    }
    Meter {
        Layout.fillWidth: true
        visible: root.presenter.isRunning
        fraction: root.presenter.progress
        accessibleName: root.presenter.isRunning ? root.presenter.speedTitle : ""
        valueText: root.presenter.status
    }
    AccessibleText {
        objectName: "speedStatus"
        Layout.fillWidth: true
        visible: text !== ""
        text: root.presenter.status
        wrapMode: Text.Wrap
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
    }
    ColumnLayout {
        Layout.fillWidth: true
        visible: root.presenter.hasResult
        spacing: 8

        Repeater {
            model: root.presenter.stats
            delegate: FigureLine {
                required property systemFigure row

                Layout.fillWidth: true
                label: row.label
                value: row.value
            }
        }
        Item {
            Layout.preferredHeight: 2
        }
        Repeater {
            model: root.presenter.capabilities
            delegate: CapabilityLine {
                Layout.fillWidth: true
            }
        }
    }
}
