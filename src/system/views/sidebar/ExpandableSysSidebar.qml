import QtQuick
import Tidewatch.System
import Tidewatch.Ui

/*! The column beside the tabs: the overview of the machine, or one of its detail panels. */
Item {
    id: root

    required property SidebarPresenter presenter

    /*! Given by a pane. */
    property string title

    // The row that opened the panel on show, and why its button had the focus.
    property int row: 0
    property int reason: Qt.OtherFocusReason

    function moveFocus() {
        if (presenter.isOverview) {
            overview.focusRow(row, reason);
            return;
        }
        const panel = detail.view as DetailPanel;
        if (panel !== null)
            panel.focusBack(reason);
    }

    Accessible.role: Accessible.Pane
    Accessible.name: title

    Rectangle {
        anchors.fill: parent
        color: Style.palette.ground
    }
    // Hidden, not destroyed, while a panel is open: it keeps its place.
    SysOverviewPanel {
        id: overview

        objectName: "overview"
        anchors.fill: parent
        visible: root.presenter.isOverview
        presenter: root.presenter.overview
        onChosen: (row, reason) => {
            root.row = row;
            root.reason = reason;
            root.presenter.overview.select(row);
        }
    }
    PaneView {
        id: detail

        objectName: "detail"
        anchors.fill: parent
        pane: root.presenter.detail
    }
    Connections {
        target: root.presenter

        function onPanelChanged() {
            focusMove.restart();
        }
    }
    // Afterwards, when the views have followed.
    Timer {
        id: focusMove

        interval: 0
        onTriggered: root.moveFocus()
    }
}
