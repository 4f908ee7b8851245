pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! The external volumes. */
DetailPanel {
    id: root

    required property DevicesDetailPresenter presenter

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

            DeviceLine {
                anchors.fill: parent
                objectName: volume.row.name
                row: volume.row
                freeCaption: root.presenter.freeCaption
                ejectingText: root.presenter.ejectingText
                onEjectRequested: root.presenter.eject(volume.row.id)
            }
        }
    }
}
