import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The box over a board that is not being played on. */
Rectangle {
    id: root

    required property GamePresenter presenter

    /*! Pixels per point of the layout. */
    property real unit: 1

    anchors.centerIn: parent
    visible: presenter.overlayTitle !== ""
    width: Math.max(title.implicitWidth, line.visible ? line.implicitWidth : 0) + 24 * unit
    height: words.implicitHeight + 20 * unit
    radius: Style.metrics.chipRadius * unit
    // The cards of some themes are translucent.
    color: Style.palette.windowBackground
    border.width: 1
    border.color: Style.palette.stroke

    Column {
        id: words

        anchors.centerIn: parent
        spacing: Style.metrics.tightSpacing * root.unit

        AccessibleText {
            id: title

            objectName: "overlayTitle"
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.presenter.overlayTitle
            font: Style.tracked(Style.serif(13 * root.unit, Style.Semibold), 1.2 * root.unit)
            color: Style.palette.primaryText
        }

        AccessibleText {
            id: line

            objectName: "overlayText"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            text: root.presenter.overlayText
            font: Style.sans(11 * root.unit, Style.Regular)
            color: Style.palette.secondaryText
        }
    }
}
