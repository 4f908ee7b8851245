import QtQuick
import Tidewatch.Shell
import Tidewatch.System
import Tidewatch.Ui

/*! The speed test of the line. */
Gadget {
    id: root

    required property SpeedGadgetPresenter presenter

    gadget: presenter

    SpeedGauge {
        objectName: "gauge"
        width: parent.width
        size: 116 * root.unit
        unit: root.unit
        value: root.presenter.value
        scaleMax: root.presenter.scaleMax
        valueText: root.presenter.valueText
        caption: root.presenter.caption
        textColor: root.ink
        muteColor: root.quiet
    }
    GadgetFigure {
        objectName: "status"
        anchors.left: parent.left
        anchors.right: button.left
        anchors.rightMargin: 8 * root.unit
        anchors.verticalCenter: button.verticalCenter
        text: root.presenter.status
        font: Style.sans(11 * root.unit, Style.Regular)
        color: root.quiet
    }
    TextButton {
        id: button

        objectName: "speedButton"
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        width: 76 * root.unit
        height: 24 * root.unit
        cornerRadius: Style.metrics.chipRadius * root.unit
        textSize: 12 * root.unit
        primary: !root.presenter.isRunning
        text: root.presenter.buttonText
        onClicked: root.presenter.press()
    }
}
