import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The active project and its time today, or where to choose one. */
Gadget {
    id: root

    required property ProjectGadgetPresenter presenter

    gadget: presenter

    Rectangle {
        id: dot

        objectName: "dot"
        anchors.verticalCenter: name.verticalCenter
        visible: root.presenter.hasProject
        width: 9 * root.unit
        height: width
        radius: width / 2
        color: root.presenter.color
    }
    NameText {
        id: name

        objectName: "name"
        anchors.left: dot.right
        anchors.leftMargin: 6 * root.unit
        anchors.right: parent.right
        visible: root.presenter.hasProject
        text: root.presenter.name
        font: Style.sans(14 * root.unit, Style.Medium)
        color: root.ink
        Accessible.role: Accessible.StaticText
        Accessible.name: root.presenter.accessibleText
        Accessible.ignored: !visible
    }
    PlainText {
        id: time

        objectName: "time"
        anchors.bottom: parent.bottom
        anchors.bottomMargin: -3 * root.unit
        visible: root.presenter.hasProject
        text: root.presenter.time
        font: Style.mono(22 * root.unit, Style.Light)
        color: root.ink
    }
    PlainText {
        id: timeTitle

        anchors.left: time.right
        anchors.leftMargin: 6 * root.unit
        anchors.baseline: time.baseline
        visible: root.presenter.hasProject
        text: root.presenter.timeTitle
        font: Style.sans(11 * root.unit, Style.Regular)
        color: root.quiet
    }
    AccessibleText {
        objectName: "noProject"
        visible: !root.presenter.hasProject
        text: root.presenter.noProject
        font: Style.sans(14 * root.unit, Style.Medium)
        color: root.ink
    }
    AccessibleText {
        objectName: "noProjectHelp"
        anchors.bottom: parent.bottom
        visible: !root.presenter.hasProject
        text: root.presenter.noProjectHelp
        font: Style.sans(11 * root.unit, Style.Regular)
        color: root.quiet
    }
}
