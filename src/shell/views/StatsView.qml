pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tidewatch.Shell
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The content of the statistics window: the tabs, the panes beside them, and the break alert above them. */
FocusScope {
    id: root

    required property StatsPresenter presenter

    /*! Whether the panes beside the tabs lie above them. */
    readonly property bool overTabs: presenter.isFolded && presenter.besideShown

    // The tabs are on the screen: what is beside them is created afterwards, so that it does not delay them.
    property bool tabsShown: false

    // What had the focus when they were opened.
    property Item before: null

    function enterBeside() {
        const first = beside.nextItemInFocusChain(true);
        const control = before as T.Control;
        if (overTabs && first !== null)
            first.forceActiveFocus(control !== null ? control.focusReason : Qt.OtherFocusReason);
    }

    onOverTabsChanged: {
        if (overTabs) {
            before = Window.activeFocusItem;
            entry.restart();
        } else if (presenter.isFolded && before !== null) {
            before.forceActiveFocus(Qt.OtherFocusReason);
        }
    }

    focus: true

    // Afterwards, when they exist.
    Timer {
        id: entry

        interval: 0
        onTriggered: root.enterBeside()
    }
    Connections {
        target: root.Window.window
        enabled: !root.tabsShown

        function onFrameSwapped() {
            root.tabsShown = true;
        }
    }
    Binding {
        target: root.presenter
        property: "width"
        value: root.width
    }
    Binding {
        target: root.presenter
        property: "minimized"
        value: root.Window.visibility === Window.Minimized
    }

    Keys.onEscapePressed: {
        if (root.overTabs)
            root.presenter.toggleBeside();
        else
            root.Window.window.close();
    }
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

    PaneView {
        anchors.left: parent.left
        anchors.right: root.presenter.isFolded ? parent.right : beside.left
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        pane: root.presenter.tabsPane
    }
    Rectangle {
        anchors.fill: parent
        visible: root.overTabs
        color: Qt.rgba(0, 0, 0, 0.4)

        // Nothing below it is to be reached.
        MouseArea {
            objectName: "outside"
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.AllButtons
            onClicked: root.presenter.toggleBeside()
            onWheel: wheel => wheel.accepted = true
        }
    }
    Row {
        id: beside

        objectName: "beside"
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom

        Repeater {
            model: root.presenter.besideShown ? root.presenter.besideTabs : []
            delegate: Rectangle {
                id: place

                required property pane modelData

                width: 1 + modelData.width
                height: beside.height
                color: root.overTabs ? Style.palette.windowBackground : "transparent"

                // The separator.
                Rectangle {
                    width: 1
                    height: parent.height
                    color: Style.palette.stroke
                }
                Repeater {
                    model: root.tabsShown ? 1 : 0
                    delegate: PaneView {
                        x: 1
                        width: place.modelData.width
                        height: place.height
                        pane: place.modelData
                    }
                }
            }
        }
    }

    BreakBombView {
        anchors.fill: parent
        presenter: root.presenter.breakAlert
    }
}
