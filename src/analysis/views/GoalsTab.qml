pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! Stars, progress, and the settings of the goals. */
TabPane {
    id: root

    required property GoalsPresenter presenter

    ColumnLayout {
        width: parent.width
        spacing: Style.metrics.wideSpacing

        Hint {
            objectName: "preview"
            Layout.fillWidth: true
            text: root.presenter.preview
        }
        Card {
            Layout.fillWidth: true

            ColumnLayout {
                anchors.fill: parent
                spacing: 14

                Heading {
                    text: root.presenter.rewardTitle
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 48

                    SymbolRow {
                        objectName: "stars"
                        names: root.presenter.stars
                        colors: root.presenter.starColors
                        side: 34
                        spacing: 10
                        Accessible.role: Accessible.StaticText
                        Accessible.name: root.presenter.starsAccessibleText
                    }
                    Item {
                        Layout.fillWidth: true
                    }
                    Stat {
                        objectName: "streak"
                        title: root.presenter.streakTitle
                        value: root.presenter.streak
                    }
                    Stat {
                        objectName: "monthStars"
                        title: root.presenter.monthTitle
                        value: root.presenter.monthStars
                    }
                }
            }
        }
        Card {
            Layout.fillWidth: true

            ColumnLayout {
                anchors.fill: parent
                spacing: 18

                Heading {
                    text: root.presenter.progressTitle
                }
                Repeater {
                    model: root.presenter.progress
                    delegate: GoalLine {
                        required property goalRow row

                        Layout.fillWidth: true
                        goal: row
                    }
                }
            }
        }
        Card {
            Layout.fillWidth: true

            ColumnLayout {
                anchors.fill: parent
                spacing: 10

                Heading {
                    Layout.bottomMargin: 4
                    text: root.presenter.settingsTitle
                }
                Repeater {
                    model: root.presenter.steppers
                    delegate: StepperRow {
                        required property goalStepper row

                        Layout.fillWidth: true
                        stepper: row
                        onIncrease: root.presenter.increase(row.id)
                        onDecrease: root.presenter.decrease(row.id)
                    }
                }
                Rectangle {
                    Layout.fillWidth: true
                    Layout.topMargin: 4
                    Layout.preferredHeight: 1
                    color: Style.palette.stroke
                }
                LabeledSwitch {
                    objectName: "notifications"
                    Layout.fillWidth: true
                    text: root.presenter.notificationsTitle
                    checked: root.presenter.notificationsEnabled
                    onToggled: checked => root.presenter.setNotificationsEnabled(checked)
                }
            }
        }
        Band {
            Layout.alignment: Qt.AlignLeft
            horizontalPadding: 0
            verticalPadding: 0

            TextButton {
                objectName: "report"
                symbol: "doc.richtext"
                text: root.presenter.reportTitle
                onClicked: root.presenter.exportReport()
            }
        }
    }
}
