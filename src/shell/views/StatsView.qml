pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Shell
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! All of the statistics window: its head, its tabs, and the one on show. */
FocusScope {
    id: root

    required property StatsPresenter presenter

    focus: true

    Keys.onEscapePressed: root.Window.window.close()
    Keys.onPressed: event => {
        if (!(event.modifiers & Qt.ControlModifier))
            return;
        if (event.key === Qt.Key_W)
            root.Window.window.close();
        else if (event.key >= Qt.Key_1 && event.key <= Qt.Key_9)
            root.presenter.selectTab(event.key - Qt.Key_1);
        else
            return;
        event.accepted = true;
    }

    DashboardBackground {
        anchors.fill: parent
        time: root.presenter.wallClock
        running: !root.presenter.breakAlert.alertActive
    }

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        height: line.y
        color: Style.palette.ground
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
            id: line

            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: Style.palette.stroke
        }
        // The tab on show alone. Not loaders: those of this toolkit's version know no bound components.
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            Repeater {
                model: root.presenter.tabIndex === 0 ? 1 : 0
                delegate: OverviewTab {
                    anchors.fill: parent
                    Accessible.name: root.presenter.tabs[0]
                    padding: 28
                    presenter: root.presenter.overview
                    insights: root.presenter.insights
                }
            }
            Repeater {
                model: root.presenter.tabIndex === 1 ? 1 : 0
                delegate: GoalsTab {
                    anchors.fill: parent
                    Accessible.name: root.presenter.tabs[1]
                    padding: 28
                    presenter: root.presenter.goals
                }
            }
            Repeater {
                model: root.presenter.tabIndex === 2 ? 1 : 0
                delegate: DetailsTab {
                    anchors.fill: parent
                    Accessible.name: root.presenter.tabs[2]
                    padding: 28
                    presenter: root.presenter.details
                }
            }
            Repeater {
                model: root.presenter.tabIndex === 3 ? 1 : 0
                delegate: TimesheetTab {
                    anchors.fill: parent
                    Accessible.name: root.presenter.tabs[3]
                    padding: 28
                    presenter: root.presenter.timesheet
                }
            }
            Repeater {
                model: root.presenter.tabIndex === 4 ? 1 : 0
                delegate: ProjectsTab {
                    anchors.fill: parent
                    Accessible.name: root.presenter.tabs[4]
                    padding: 28
                    presenter: root.presenter.projects
                }
            }
        }
    }

    BreakBombView {
        anchors.fill: parent
        presenter: root.presenter.breakAlert
    }
}
