import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The streak of days, the longest session, and when and how much was worked. */
Gadget {
    id: root

    required property StreakGadgetPresenter presenter

    gadget: presenter

    Symbol {
        id: flame

        anchors.verticalCenter: streak.verticalCenter
        name: "flame.fill"
        side: 22 * root.unit
        color: Style.palette.amber
    }
    GadgetFigure {
        id: streak

        objectName: "streak"
        anchors.left: flame.right
        anchors.leftMargin: 4 * root.unit
        width: 66 * root.unit
        height: 32 * root.unit
        text: root.presenter.streak
        font: Style.mono(26 * root.unit, Style.Light)
        color: root.ink
        verticalAlignment: Text.AlignVCenter
        Accessible.name: root.presenter.streakAccessibleText
    }
    GadgetFigure {
        objectName: "longest"
        anchors.left: streak.right
        anchors.right: parent.right
        anchors.baseline: streak.baseline
        text: root.presenter.longest
        font: Style.mono(22 * root.unit, Style.Light)
        color: root.ink
        horizontalAlignment: Text.AlignRight
        Accessible.name: root.presenter.longestAccessibleText
    }
    PlainText {
        objectName: "longestTitle"
        anchors.right: parent.right
        y: 31 * root.unit
        text: root.presenter.longestTitle
        font: Style.sans(10 * root.unit, Style.Regular)
        color: root.quiet
    }
    GadgetMiniStat {
        objectName: "peakHour"
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        unit: root.unit
        ink: root.ink
        quiet: root.quiet
        title: root.presenter.peakHourTitle
        value: root.presenter.peakHour
    }
    GadgetMiniStat {
        objectName: "total"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        unit: root.unit
        ink: root.ink
        quiet: root.quiet
        alignment: Text.AlignRight
        title: root.presenter.totalTitle
        value: root.presenter.total
    }
}
