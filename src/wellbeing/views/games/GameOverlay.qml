import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The box over a board that is not being played on. */
Rectangle {
    id: root

    required property GamePresenter presenter

    anchors.centerIn: parent
    visible: presenter.overlayTitle !== ""
    width: Math.max(title.implicitWidth, line.visible ? line.implicitWidth : 0) + 24
    height: words.implicitHeight + 20
    radius: Style.metrics.chipRadius
    // The cards of some themes are translucent.
    color: Style.palette.windowBackground
    border.width: 1
    border.color: Style.palette.stroke

    Column {
        id: words

        anchors.centerIn: parent
        spacing: Style.metrics.tightSpacing

        AccessibleText {
            id: title

            objectName: "overlayTitle"
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.presenter.overlayTitle
            font: Style.tracked(Style.serif(13, Style.Semibold), 1.2)
            color: Style.palette.primaryText
        }

        AccessibleText {
            id: line

            objectName: "overlayText"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: root.presenter.overlayText
            font: Style.sans(11, Style.Regular)
            color: Style.palette.secondaryText
        }
    }
}
