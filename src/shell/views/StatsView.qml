pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Shell
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The content of the statistics window: the panes of its row, and the break alert above them. */
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

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Repeater {
            model: root.presenter.panes
            delegate: PaneView {
                required property pane modelData

                Layout.fillHeight: true
                Layout.fillWidth: modelData.width === 0
                Layout.preferredWidth: modelData.width
                pane: modelData
            }
        }
    }

    BreakBombView {
        anchors.fill: parent
        presenter: root.presenter.breakAlert
    }
}
