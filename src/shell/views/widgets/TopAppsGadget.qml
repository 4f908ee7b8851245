pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The most used applications of today. */
Gadget {
    id: root

    required property TopAppsGadgetPresenter presenter

    gadget: presenter

    AccessibleText {
        objectName: "noApps"
        anchors.centerIn: parent
        visible: !root.presenter.hasApps
        text: root.presenter.noApps
        font: Style.sans(12 * root.unit, Style.Regular)
        color: root.quiet
    }
    Column {
        id: apps

        width: parent.width
        spacing: 7 * root.unit

        Repeater {
            model: root.presenter.apps
            delegate: GadgetAppLine {
                width: apps.width
                unit: root.unit
                ink: root.ink
                quiet: root.quiet
            }
        }
    }
}
