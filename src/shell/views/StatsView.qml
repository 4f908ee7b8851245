pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Shell
import Tidewatch.Style

/*! All of the statistics window: its head, its tabs, and the one on show. */
FocusScope {
    id: root

    required property StatsPresenter presenter

    readonly property list<Component> tabs: [overview, goals, details, timesheet, projects]

    focus: true

    DashboardBackground {
        anchors.fill: parent
        time: root.presenter.wallTime
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        HeaderBar {
            Layout.fillWidth: true
            Layout.leftMargin: 28
            Layout.rightMargin: 28
            Layout.topMargin: 20
            presenter: root.presenter.header
        }
        TabBar {
            objectName: "tabs"
            Layout.leftMargin: 28
            Layout.topMargin: 8
            labels: root.presenter.tabs
            currentIndex: root.presenter.tabIndex
            onActivated: index => root.presenter.selectTab(index)
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: Style.palette.stroke
        }
        Loader {
            objectName: "tab"
            Layout.fillWidth: true
            Layout.fillHeight: true
            sourceComponent: root.tabs[root.presenter.tabIndex]
        }
    }

    Component {
        id: overview

        OverviewTab {
            padding: 28
            presenter: root.presenter.overview
            insights: root.presenter.insights
        }
    }
    Component {
        id: goals

        GoalsTab {
            padding: 28
            presenter: root.presenter.goals
        }
    }
    Component {
        id: details

        DetailsTab {
            padding: 28
            presenter: root.presenter.details
        }
    }
    Component {
        id: timesheet

        TimesheetTab {
            padding: 28
            presenter: root.presenter.timesheet
        }
    }
    Component {
        id: projects

        ProjectsTab {
            padding: 28
            presenter: root.presenter.projects
        }
    }

    Instantiator {
        model: root.presenter.tabs.length
        delegate: Shortcut {
            required property int index

            sequence: "Ctrl+" + (index + 1)
            onActivated: root.presenter.selectTab(index)
        }
    }
    Shortcut {
        sequences: ["Ctrl+W", "Esc"]
        onActivated: root.Window.window.close()
    }
}
