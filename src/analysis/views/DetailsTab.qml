pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day's applications as a table that can be filtered and reclassified. */
TabPane {
    id: root

    required property DetailsPresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        Band {
            Layout.fillWidth: true

            RowLayout {
                anchors.fill: parent
                spacing: Style.metrics.spacing

                Repeater {
                    model: root.presenter.tiers
                    delegate: TierChip {
                        required property tierSwitch row

                        objectName: row.id
                        tier: row
                        onToggled: root.presenter.toggleTier(row.id)
                    }
                }
                Item {
                    Layout.fillWidth: true
                }
                SearchField {
                    objectName: "search"
                    Layout.preferredWidth: 220
                    Layout.minimumWidth: 120
                    Layout.fillWidth: true
                    Layout.maximumWidth: 220
                    placeholder: root.presenter.searchPrompt
                    text: root.presenter.searchText
                    onEdited: text => root.presenter.searchText = text
                }
            }
        }
        Card {
            Layout.fillWidth: true
            padding: 8

            ColumnLayout {
                anchors.fill: parent
                spacing: 0

                RowLayout {
                    Layout.fillWidth: true
                    Layout.leftMargin: 12
                    Layout.rightMargin: 12
                    Layout.topMargin: 10
                    Layout.bottomMargin: 8
                    spacing: 12

                    Heading {
                        Layout.fillWidth: true
                        text: root.presenter.columns[0]
                    }
                    Heading {
                        Layout.preferredWidth: 104
                        text: root.presenter.columns[1]
                    }
                    Heading {
                        Layout.preferredWidth: 84
                        horizontalAlignment: Text.AlignRight
                        text: root.presenter.columns[2]
                    }
                    Heading {
                        Layout.preferredWidth: 48
                        horizontalAlignment: Text.AlignRight
                        text: root.presenter.columns[3]
                    }
                }
                Rectangle {
                    Layout.fillWidth: true
                    Layout.leftMargin: 12
                    Layout.rightMargin: 12
                    Layout.bottomMargin: 4
                    Layout.preferredHeight: 1
                    color: Style.palette.stroke
                }
                LazyColumn {
                    objectName: "rows"
                    Layout.fillWidth: true
                    rowHeight: 40
                    model: root.presenter.rows
                    delegate: DetailsRow {
                        objectName: row.id
                        onMenuRequested: at => root.presenter.openMenu(row.id, at)
                    }
                }
                EmptyState {
                    objectName: "empty"
                    Layout.fillWidth: true
                    visible: root.presenter.isEmpty
                    symbol: "magnifyingglass"
                    title: root.presenter.emptyText
                    text: root.presenter.preview
                }
            }
        }
        Hint {
            Layout.fillWidth: true
            text: root.presenter.hint
        }
    }
}
