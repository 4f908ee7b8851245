import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! How much of the plan's limits is used, for a narrow column. */
Card {
    id: root

    required property ClaudeCardPresenter presenter

    padding: 12

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        RowLayout {
            Layout.fillWidth: true
            spacing: 6

            Symbol {
                name: "sparkle"
                side: 14
                color: Style.palette.amber
            }
            AccessibleText {
                objectName: "title"
                Layout.fillWidth: true
                text: root.presenter.title
                elide: Text.ElideRight
                font: Style.sans(11, Style.Bold)
                color: Style.palette.strongMute
            }
            AccessibleText {
                objectName: "cost"
                text: root.presenter.cost
                font: Style.sans(11, Style.Regular)
                color: Style.palette.secondaryText
            }
        }
        LimitLine {
            objectName: "session"
            Layout.fillWidth: true
            title: root.presenter.sessionTitle
            figures: root.presenter.sessionPercent
            fraction: root.presenter.sessionFraction
            color: root.presenter.sessionColor
            remark: root.presenter.sessionEnd
            reset: root.presenter.sessionReset
        }
        LimitLine {
            objectName: "week"
            Layout.fillWidth: true
            title: root.presenter.weekTitle
            figures: root.presenter.weekFigures + " " + root.presenter.weekPercent
            fraction: root.presenter.weekFraction
            color: root.presenter.weekColor
            remark: ""
            reset: root.presenter.weekReset
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 6
            Accessible.role: Accessible.StaticText
            Accessible.name: root.presenter.todayTitle + ": " + root.presenter.todayConversations + " "
                             + root.presenter.todayTokens

            Symbol {
                name: "bubble.left.and.bubble.right"
                side: 14
                color: Style.palette.mute
            }
            PlainText {
                text: root.presenter.todayTitle
                font: Style.sans(12, Style.Medium)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            PlainText {
                text: root.presenter.todayConversations
                font: Style.sans(11, Style.Regular)
                color: Style.palette.secondaryText
                Accessible.ignored: true
            }
            PlainText {
                Layout.fillWidth: true
                text: root.presenter.todayTokens
                elide: Text.ElideRight
                font: Style.sans(11, Style.Regular)
                color: Style.palette.secondaryText
                Accessible.ignored: true
            }
        }
    }
}
