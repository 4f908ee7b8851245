pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! The tokens of a period by kind, and what they would cost. */
Card {
    id: root

    required property ClaudePresenter presenter

    ColumnLayout {
        anchors.fill: parent
        spacing: 10

        Heading {
            text: root.presenter.tokensTitle
        }
        Repeater {
            model: root.presenter.tokens
            delegate: RowLayout {
                id: line

                required property claudeFigure row

                Layout.fillWidth: true
                Accessible.role: Accessible.StaticText
                Accessible.name: row.accessibleText

                PlainText {
                    Layout.fillWidth: true
                    text: line.row.label
                    font: Style.sans(14, Style.Regular)
                    color: Style.palette.primaryText
                    Accessible.ignored: true
                }
                PlainText {
                    text: line.row.value
                    font: Style.mono(14, Style.Regular)
                    color: Style.palette.secondaryText
                    Accessible.ignored: true
                }
            }
        }
        AccessibleText {
            objectName: "conversations"
            Layout.fillWidth: true
            text: root.presenter.conversations
            font: Style.sans(12, Style.Regular)
            color: Style.palette.secondaryText
        }
        Item {
            Layout.fillHeight: true
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: Style.palette.stroke
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 16
            Accessible.role: Accessible.StaticText
            Accessible.name: root.presenter.totalTitle + ": " + root.presenter.total + ", " + root.presenter.cost

            PlainText {
                Layout.fillWidth: true
                text: root.presenter.totalTitle
                font: Style.sans(14, Style.Semibold)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            PlainText {
                objectName: "total"
                text: root.presenter.total
                font: Style.mono(20, Style.Light)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            PlainText {
                objectName: "cost"
                text: root.presenter.cost
                font: Style.mono(14, Style.Regular)
                color: Style.palette.secondaryText
                Accessible.ignored: true
            }
        }
    }
}
