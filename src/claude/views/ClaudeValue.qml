pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! How much of the plan's price the month has been worth. */
Card {
    id: root

    required property ClaudePresenter presenter

    readonly property color figureColor: Style.legibleOn(Style.palette.textGround, presenter.valueColor)

    ColumnLayout {
        anchors.fill: parent
        spacing: 14

        Heading {
            text: root.presenter.valueTitle
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 28

            ColumnLayout {
                Layout.preferredWidth: 190
                spacing: 2

                AccessibleText {
                    objectName: "extracted"
                    Layout.fillWidth: true
                    text: root.presenter.extracted
                    elide: Text.ElideRight
                    font: Style.mono(44, Style.Light)
                    color: root.figureColor
                }
                AccessibleText {
                    Layout.fillWidth: true
                    text: root.presenter.ofSubscription
                    elide: Text.ElideRight
                    font: Style.sans(14, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 8

                RowLayout {
                    Layout.fillWidth: true

                    PlainText {
                        Layout.fillWidth: true
                        text: root.presenter.efficiencyTitle
                        font: Style.sans(14, Style.Medium)
                        color: Style.palette.primaryText
                        Accessible.ignored: true
                    }
                    PlainText {
                        objectName: "efficiency"
                        text: root.presenter.efficiency
                        font: Style.mono(14, Style.Regular)
                        color: root.figureColor
                        Accessible.ignored: true
                    }
                }
                Meter {
                    Layout.fillWidth: true
                    fraction: root.presenter.efficiencyFraction
                    color: root.presenter.valueColor
                    track: Style.palette.stroke
                    accessibleName: root.presenter.efficiencyTitle
                    valueText: root.presenter.efficiency
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 6
                    Accessible.role: Accessible.StaticText
                    Accessible.name: root.presenter.usedWindows + " " + root.presenter.possibleWindows

                    PlainText {
                        text: root.presenter.usedWindows
                        font: Style.sans(13, Style.Medium)
                        color: Style.palette.primaryText
                        Accessible.ignored: true
                    }
                    PlainText {
                        Layout.fillWidth: true
                        text: root.presenter.possibleWindows
                        elide: Text.ElideRight
                        font: Style.sans(13, Style.Regular)
                        color: Style.palette.secondaryText
                        Accessible.ignored: true
                    }
                }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 12

            Repeater {
                model: root.presenter.sessions
                delegate: Rectangle {
                    id: tile

                    required property claudeFigure row

                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    implicitHeight: figures.implicitHeight + 24
                    radius: Style.metrics.chipRadius
                    color: Style.palette.cardSubtle
                    Accessible.role: Accessible.StaticText
                    Accessible.name: row.accessibleText

                    RowLayout {
                        id: figures

                        anchors.fill: parent
                        anchors.margins: 12
                        spacing: 12

                        PlainText {
                            Layout.fillWidth: true
                            text: tile.row.label
                            font: Style.sans(11, Style.Medium)
                            color: Style.palette.secondaryText
                            Accessible.ignored: true
                        }
                        PlainText {
                            text: tile.row.value
                            font: Style.mono(22, Style.Light)
                            color: Style.palette.primaryText
                            Accessible.ignored: true
                        }
                    }
                }
            }
        }
        AccessibleText {
            Layout.fillWidth: true
            text: root.presenter.sessionNote
            wrapMode: Text.WordWrap
            font: Style.sans(12, Style.Regular)
            color: Style.palette.secondaryText
        }
    }
}
