pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! The last months, the newest at the bottom. */
Card {
    id: root

    required property ClaudePresenter presenter

    ColumnLayout {
        anchors.fill: parent
        spacing: 16

        Heading {
            text: root.presenter.historyTitle
        }
        AccessibleText {
            objectName: "noHistory"
            Layout.fillWidth: true
            visible: !root.presenter.hasHistory
            text: root.presenter.noHistory
            font: Style.sans(13, Style.Regular)
            color: Style.palette.secondaryText
        }
        Repeater {
            model: root.presenter.months
            delegate: ClaudeBarLine {
                Layout.fillWidth: true
                valueColor: Style.legibleOn(Style.palette.textGround, row.valueColor)
            }
        }
    }
}
