pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! What the panels with processes share: a large figure, its parts, and who takes most of it. */
DetailPanel {
    id: root

    required property ConsumersPresenter presenter

    header: presenter

    Card {
        Layout.fillWidth: true
        padding: 12

        ColumnLayout {
            anchors.fill: parent
            spacing: 8

            RowLayout {
                Layout.fillWidth: true
                spacing: 6
                Accessible.role: Accessible.StaticText
                Accessible.name: root.presenter.figure + " " + root.presenter.caption

                PlainText {
                    objectName: "figure"
                    text: root.presenter.figure
                    font: Style.mono(26, Style.Light)
                    color: Style.palette.primaryText
                    Accessible.ignored: true
                }
                PlainText {
                    Layout.fillWidth: true
                    text: root.presenter.caption
                    font: Style.sans(12, Style.Regular)
                    color: Style.palette.secondaryText
                    Accessible.ignored: true
                }
            }
            Meter {
                Layout.fillWidth: true
                fraction: root.presenter.fraction
                color: root.presenter.color
            }
            Repeater {
                model: root.presenter.parts
                delegate: FigureLine {
                    required property systemFigure row

                    Layout.fillWidth: true
                    label: row.label
                    value: row.value
                }
            }
        }
    }
    Heading {
        Layout.fillWidth: true
        text: root.presenter.consumersTitle
    }
    Column {
        objectName: "consumers"
        Layout.fillWidth: true
        Accessible.role: Accessible.List
        Accessible.name: root.presenter.consumersTitle

        Repeater {
            model: root.presenter.consumers
            delegate: ConsumerRow {
                objectName: row.name
                width: parent.width
                quitText: root.presenter.quitText
                onQuitRequested: root.presenter.quit(row.id)
            }
        }
    }
    AccessibleText {
        objectName: "notice"
        Layout.fillWidth: true
        visible: text !== ""
        text: root.presenter.notice
        wrapMode: Text.Wrap
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
    }
}
