pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! The machine at a glance: a row per panel, and below them the panes of other rooms. */
ScrollPane {
    id: root

    required property SysOverviewPresenter presenter

    /*! `row` opens a panel; `reason` is why it had the focus. */
    signal chosen(int row, int reason)

    function focusRow(row: int, reason: int) {
        const button = rows.itemAt(row);
        if (button !== null)
            button.forceActiveFocus(reason);
    }

    padding: 10
    Accessible.name: presenter.title

    ColumnLayout {
        width: parent.width
        spacing: 12

        Heading {
            Layout.fillWidth: true
            Layout.topMargin: 8
            Layout.leftMargin: 8
            text: root.presenter.title
        }
        Column {
            Layout.fillWidth: true
            spacing: 2

            Repeater {
                id: rows

                model: root.presenter.rows
                delegate: PanelRow {
                    id: panelRow

                    required property int index

                    objectName: row.id
                    width: parent.width
                    onClicked: root.chosen(index, panelRow.focusReason)
                }
            }
        }
        Repeater {
            model: root.presenter.below
            delegate: PaneView {
                required property pane modelData

                Layout.fillWidth: true
                pane: modelData
            }
        }
    }
}
