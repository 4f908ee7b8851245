import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Shell
import Tidewatch.Ui

/*! The header of the statistics window, its tab bar, and the current tab. */
Item {
    id: root

    required property string title
    required property StatsPresenter presenter

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
        Item {
            Layout.fillWidth: true
            Layout.topMargin: 8
            implicitHeight: tabs.implicitHeight

            TabBar {
                id: tabs

                objectName: "tabs"
                x: 28
                labels: root.presenter.tabs
                currentIndex: root.presenter.tabIndex
                onActivated: index => root.presenter.selectTab(index)
            }
            IconButton {
                objectName: "fold"
                anchors.right: parent.right
                anchors.rightMargin: 20
                anchors.verticalCenter: parent.verticalCenter
                visible: root.presenter.isFolded
                symbol: "sidebar.right"
                accessibleName: root.presenter.foldText
                onClicked: root.presenter.toggleBeside()
            }
        }
        Rectangle {
            id: line

            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: Style.palette.stroke
        }
        PaneView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            pane: root.presenter.tabOnShow
        }
    }
}
