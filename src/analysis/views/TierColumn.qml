pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tidewatch.Analysis
import Tidewatch.Ui

/*! A tier's time and its applications. */
Card {
    id: root

    required property TierColumnPresenter presenter

    accessibleText: root.presenter.title + ": " + root.presenter.time

    ColumnLayout {
        anchors.fill: parent
        spacing: 2

        RowLayout {
            spacing: Style.metrics.spacing

            Rectangle {
                Layout.preferredWidth: 8
                Layout.preferredHeight: 8
                radius: 4
                color: root.presenter.color
            }
            Heading {
                Layout.fillWidth: true
                text: root.presenter.title.toUpperCase()
            }
        }
        PlainText {
            objectName: "time"
            Layout.topMargin: 4
            Layout.bottomMargin: 12
            text: root.presenter.time
            font: Style.mono(24, Style.Light)
            color: Style.palette.primaryText
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !root.presenter.isEmpty

            Flickable {
                id: list

                readonly property real rowHeight: 28

                objectName: "apps"
                anchors.left: parent.left
                anchors.right: parent.right
                // Whole rows only.
                height: parent.height - parent.height % rowHeight
                clip: true
                contentWidth: width
                contentHeight: rows.height
                interactive: contentHeight > height
                boundsBehavior: Flickable.StopAtBounds
                onMovementEnded: contentY = Math.round(contentY / rowHeight) * rowHeight
                onContentHeightChanged: returnToBounds()
                Accessible.role: Accessible.List
                Accessible.name: root.presenter.title

                LazyColumn {
                    id: rows

                    width: list.width
                    rowHeight: list.rowHeight
                    model: root.presenter.apps
                    delegate: AppLine {
                        required property appRow row

                        app: row
                    }
                }

                T.ScrollBar.vertical: SlimScrollBar {
                    parent: list.parent
                    anchors.left: parent.right
                    height: list.height
                    restingOpacity: 0.4
                }
            }
        }
        AccessibleText {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: root.presenter.isEmpty
            text: root.presenter.emptyText
            wrapMode: Text.WordWrap
            font: Style.sans(13, Style.Regular)
            color: Style.palette.mute
        }
    }
}
