pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day's time by project. */
TabPane {
    id: root

    required property ProjectsPresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        Card {
            Layout.fillWidth: true
            visible: root.presenter.isEmpty

            EmptyState {
                anchors.fill: parent
                objectName: "empty"
                symbol: "calendar"
                title: root.presenter.emptyTitle
                text: root.presenter.emptyText
            }
        }
        Repeater {
            model: root.presenter.isEmpty ? null : root.presenter.rows
            delegate: ProjectCard {
                Layout.fillWidth: true
            }
        }
        Hint {
            Layout.fillWidth: true
            visible: !root.presenter.isEmpty
            text: root.presenter.hint
        }
    }
}
