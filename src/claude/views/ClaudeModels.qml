pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Claude
import Tidewatch.Ui

/*! The output of a period by model. */
Card {
    id: root

    required property ClaudePresenter presenter

    ColumnLayout {
        anchors.fill: parent
        spacing: 14

        Heading {
            text: root.presenter.modelsTitle
        }
        AccessibleText {
            objectName: "noModels"
            Layout.fillWidth: true
            visible: !root.presenter.hasModels
            text: root.presenter.noModels
            font: Style.sans(13, Style.Regular)
            color: Style.palette.secondaryText
        }
        Repeater {
            model: root.presenter.models
            delegate: ClaudeBarLine {
                Layout.fillWidth: true
            }
        }
    }
}
