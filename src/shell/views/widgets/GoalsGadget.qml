import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The streak, the stars of today and of the month, and how far today's goal is reached. */
Gadget {
    id: root

    required property GoalsGadgetPresenter presenter

    gadget: presenter

    GadgetFigure {
        id: streak

        objectName: "streak"
        anchors.right: stars.left
        anchors.rightMargin: 8 * root.unit
        anchors.left: parent.left
        height: 32 * root.unit
        text: root.presenter.streak
        font: Style.mono(26 * root.unit, Style.Light)
        color: root.ink
        verticalAlignment: Text.AlignVCenter
        Accessible.name: root.presenter.streakAccessibleText
    }
    SymbolRow {
        id: stars

        objectName: "stars"
        anchors.right: parent.right
        anchors.verticalCenter: streak.verticalCenter
        names: root.presenter.stars
        colors: root.presenter.starColors
        side: 17 * root.unit
        spacing: 4 * root.unit
        Accessible.role: Accessible.StaticText
        Accessible.name: root.presenter.starsAccessibleText
    }
    PlainText {
        id: goalTitle

        y: 43 * root.unit
        text: root.presenter.goalTitle
        font: Style.sans(12 * root.unit, Style.Regular)
        color: root.quiet
    }
    GadgetFigure {
        objectName: "goal"
        anchors.left: goalTitle.right
        anchors.leftMargin: 8 * root.unit
        anchors.right: parent.right
        anchors.baseline: goalTitle.baseline
        text: root.presenter.goal
        font: Style.mono(12 * root.unit, Style.Regular)
        color: root.ink
        horizontalAlignment: Text.AlignRight
        Accessible.name: root.presenter.goalAccessibleText
    }
    Meter {
        anchors.top: goalTitle.bottom
        anchors.topMargin: 3 * root.unit
        width: parent.width
        height: 4 * root.unit
        fraction: root.presenter.goalFraction
    }
    AccessibleText {
        id: month

        objectName: "month"
        anchors.left: monthStar.right
        anchors.leftMargin: 5 * root.unit
        anchors.bottom: parent.bottom
        text: root.presenter.monthStars
        font: Style.mono(16 * root.unit, Style.Regular)
        color: root.ink
        Accessible.name: root.presenter.monthAccessibleText
    }
    Symbol {
        id: monthStar

        anchors.left: parent.left
        anchors.verticalCenter: month.verticalCenter
        name: "star.fill"
        side: 13 * root.unit
        color: Style.palette.amber
    }
    PlainText {
        id: monthTitle

        anchors.left: month.right
        anchors.leftMargin: 6 * root.unit
        anchors.baseline: month.baseline
        text: root.presenter.monthTitle
        font: Style.sans(11 * root.unit, Style.Regular)
        color: root.quiet
    }
}
