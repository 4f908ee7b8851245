pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! Large and forgotten files, and the folders that weigh most. */
TabPane {
    id: root

    required property DiskTabPresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        Band {
            Layout.fillWidth: true

            RowLayout {
                anchors.fill: parent
                spacing: Style.metrics.wideSpacing

                ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 4

                    Heading {
                        Layout.fillWidth: true
                        text: root.presenter.title
                    }
                    AccessibleText {
                        Layout.fillWidth: true
                        text: root.presenter.subtitle
                        elide: Text.ElideRight
                        font: Style.sans(13, Style.Regular)
                        color: Style.palette.secondaryText
                    }
                }
                TextButton {
                    objectName: "scan"
                    Layout.maximumWidth: 320
                    symbol: "magnifyingglass"
                    primary: !root.presenter.isScanning
                    text: root.presenter.scanText
                    onClicked: root.presenter.scan()
                }
            }
        }
        Card {
            Layout.fillWidth: true
            visible: !root.presenter.hasResult

            ColumnLayout {
                anchors.fill: parent
                spacing: 0

                EmptyState {
                    objectName: "empty"
                    Layout.fillWidth: true
                    symbol: "magnifyingglass"
                    title: root.presenter.emptyTitle
                    text: root.presenter.emptyText
                }
                AccessibleText {
                    objectName: "permission"
                    Layout.fillWidth: true
                    Layout.bottomMargin: 40
                    visible: text !== ""
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                    text: root.presenter.permissionNote
                    font: Style.sans(12, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            visible: root.presenter.hasResult
            spacing: Style.metrics.wideSpacing

            Repeater {
                model: root.presenter.summary
                delegate: Card {
                    id: figure

                    required property systemFigure row

                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    padding: 16

                    Stat {
                        anchors.fill: parent
                        title: figure.row.label
                        value: figure.row.value
                    }
                }
            }
        }
        Band {
            Layout.fillWidth: true
            visible: root.presenter.hasResult && root.presenter.accessNote !== ""

            AccessibleText {
                objectName: "accessNote"
                anchors.fill: parent
                text: root.presenter.accessNote
                elide: Text.ElideRight
                font: Style.sans(12, Style.Regular)
                color: Style.palette.secondaryText
            }
        }
        Card {
            Layout.fillWidth: true
            visible: root.presenter.hasResult
            padding: 8

            ColumnLayout {
                anchors.fill: parent
                spacing: 4

                Heading {
                    Layout.fillWidth: true
                    Layout.leftMargin: 12
                    Layout.topMargin: 10
                    Layout.bottomMargin: 4
                    text: root.presenter.filesTitle
                }
                AccessibleText {
                    objectName: "noFiles"
                    Layout.fillWidth: true
                    Layout.leftMargin: 12
                    Layout.bottomMargin: 12
                    visible: !root.presenter.hasFiles
                    text: root.presenter.noFiles
                    font: Style.sans(13, Style.Regular)
                    color: Style.palette.secondaryText
                }
                LazyColumn {
                    objectName: "files"
                    Layout.fillWidth: true
                    rowHeight: 40
                    model: root.presenter.files
                    delegate: DiskFileRow {
                        objectName: row.id
                        revealText: root.presenter.revealText
                        trashText: root.presenter.trashText
                        onRevealed: root.presenter.reveal(row.id)
                        onTrashed: root.presenter.trash(row.id)
                    }
                }
            }
        }
        Card {
            Layout.fillWidth: true
            visible: root.presenter.hasResult
            padding: 8

            ColumnLayout {
                anchors.fill: parent
                spacing: 4

                Heading {
                    Layout.fillWidth: true
                    Layout.leftMargin: 12
                    Layout.topMargin: 10
                    Layout.bottomMargin: 4
                    text: root.presenter.foldersTitle
                }
                AccessibleText {
                    objectName: "noFolders"
                    Layout.fillWidth: true
                    Layout.leftMargin: 12
                    Layout.bottomMargin: 12
                    visible: !root.presenter.hasFolders
                    text: root.presenter.noFolders
                    font: Style.sans(13, Style.Regular)
                    color: Style.palette.secondaryText
                }
                LazyColumn {
                    objectName: "folders"
                    Layout.fillWidth: true
                    rowHeight: 44
                    model: root.presenter.folders
                    delegate: DiskFolderRow {
                        objectName: row.id
                        revealText: root.presenter.revealFolderText
                        onRevealed: root.presenter.reveal(row.id)
                    }
                }
            }
        }
    }
}
