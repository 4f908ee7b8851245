import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The brick game: its board, and under it the numbers. */
Column {
    id: root

    required property BreakoutPresenter presenter

    spacing: Style.metrics.tightSpacing

    BreakoutField {
        objectName: "breakoutField"
        presenter: root.presenter
        pieceColors: Style.palette.gamePieces
        plainColor: Style.palette.primaryText
        ballColor: Style.palette.tierProductive
        // The cards of some themes are translucent.
        ground: Qt.alpha(Qt.tint(Style.palette.windowBackground, Style.palette.cardSubtle), 0.55)
        edge: Style.palette.stroke
        Accessible.role: Accessible.Graphic
        Accessible.name: root.presenter.accessibleText
        Accessible.ignored: !visible

        GameOverlay {
            presenter: root.presenter
        }
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        height: 16
        spacing: Style.metrics.wideSpacing

        GameFigure {
            objectName: "lives"
            anchors.verticalCenter: parent.verticalCenter
            number: root.presenter.lives
        }

        GameFigure {
            objectName: "breakoutLevel"
            anchors.verticalCenter: parent.verticalCenter
            number: root.presenter.level
        }

        GameFigure {
            objectName: "breakoutBest"
            anchors.verticalCenter: parent.verticalCenter
            number: root.presenter.best
        }
    }
}
