import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The brick game: its board, and under it the numbers. */
Column {
    id: root

    required property BreakoutPresenter presenter

    /*! Pixels per point of the layout. */
    property real unit: 1

    spacing: Style.metrics.tightSpacing * unit

    BreakoutField {
        objectName: "breakoutField"
        presenter: root.presenter
        unit: root.unit
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
            unit: root.unit
        }
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        height: 16 * root.unit
        spacing: Style.metrics.wideSpacing * root.unit

        GameFigure {
            objectName: "lives"
            anchors.verticalCenter: parent.verticalCenter
            number: root.presenter.lives
            unit: root.unit
        }

        GameFigure {
            objectName: "breakoutLevel"
            anchors.verticalCenter: parent.verticalCenter
            number: root.presenter.level
            unit: root.unit
        }

        GameFigure {
            objectName: "breakoutBest"
            anchors.verticalCenter: parent.verticalCenter
            number: root.presenter.best
            unit: root.unit
        }
    }
}
