pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! The internal volumes. */
DetailPanel {
    id: root

    required property DiskDetailPresenter presenter

    header: presenter

    Heading {
        Layout.fillWidth: true
        text: root.presenter.volumesTitle
    }
    AccessibleText {
        objectName: "noVolumes"
        Layout.fillWidth: true
        visible: !root.presenter.hasVolumes
        text: root.presenter.noVolumes
        wrapMode: Text.WordWrap
        font: Style.sans(12, Style.Regular)
        color: Style.palette.secondaryText
    }
    Repeater {
        model: root.presenter.volumes
        delegate: Card {
            id: volume

            required property systemVolume row

            Layout.fillWidth: true
            padding: 12

            ColumnLayout {
                anchors.fill: parent
                spacing: 8

                NameText {
                    objectName: "name"
                    Layout.fillWidth: true
                    text: volume.row.name
                    font: Style.sans(13, Style.Medium)
                    color: Style.palette.primaryText
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 6
                    Accessible.role: Accessible.StaticText
                    Accessible.name: volume.row.free + " " + root.presenter.freeCaption

                    PlainText {
                        text: volume.row.free
                        font: Style.mono(22, Style.Light)
                        color: Style.palette.primaryText
                        Accessible.ignored: true
                    }
                    PlainText {
                        Layout.fillWidth: true
                        text: root.presenter.freeCaption
                        font: Style.sans(12, Style.Regular)
                        color: Style.palette.secondaryText
                        Accessible.ignored: true
                    }
                }
                Meter {
                    Layout.fillWidth: true
                    fraction: volume.row.fraction
                    color: volume.row.color
                    accessibleName: volume.row.name
                    valueText: volume.row.usedShare
                }
                FigureLine {
                    Layout.fillWidth: true
                    label: root.presenter.totalTitle
                    value: volume.row.total
                }
                FigureLine {
                    Layout.fillWidth: true
                    label: root.presenter.usedTitle
                    value: volume.row.used
                }
                FigureLine {
                    Layout.fillWidth: true
                    label: root.presenter.freeTitle
                    value: volume.row.free
                }
            }
        }
    }
}
