import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! How much of the plan's limits is used, for a narrow column. */
Card {
    id: root

    required property ClaudeCardPresenter presenter

    /*! Given by a pane. */
    property string title

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
                // Beside the sums of a heavy month it has to be a little smaller.
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 9
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
            limit: root.presenter.session
        }
        LimitLine {
            objectName: "week"
            Layout.fillWidth: true
            limit: root.presenter.week
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 6
            Accessible.role: Accessible.StaticText
            Accessible.name: root.presenter.today.accessibleText

            Symbol {
                name: "bubble.left.and.bubble.right"
                side: 14
                color: Style.palette.mute
            }
            PlainText {
                text: root.presenter.today.label
                font: Style.sans(12, Style.Medium)
                color: Style.palette.primaryText
                Accessible.ignored: true
            }
            PlainText {
                Layout.fillWidth: true
                text: root.presenter.today.value
                elide: Text.ElideRight
                font: Style.sans(11, Style.Regular)
                color: Style.palette.secondaryText
                Accessible.ignored: true
            }
        }
    }
}
