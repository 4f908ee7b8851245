import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The falling-blocks game: its board, and under it the next piece and the numbers. */
Column {
    id: root

    required property TetrisPresenter presenter

    /*! Pixels per point of the layout. */
    property real unit: 1

    /*! Side of a cell, in points. */
    property real cell: 15

    width: field.width
    spacing: Style.metrics.tightSpacing * unit

    TetrisField {
        id: field

        objectName: "tetrisField"
        anchors.horizontalCenter: parent.horizontalCenter
        presenter: root.presenter
        cell: root.cell
        unit: root.unit
        pieceColors: Style.palette.gamePieces
        plainColor: Style.palette.primaryText
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

    Item {
        width: parent.width
        height: 16 * root.unit

        PlainText {
            id: nextTitle

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.presenter.nextTitle
            font: Style.sans(8 * root.unit, Style.Medium)
            color: Style.legibleOn(Style.palette.textGround, Style.palette.mute)
        }

        NextPiece {
            objectName: "nextPiece"
            anchors.left: nextTitle.right
            anchors.leftMargin: 3 * root.unit
            anchors.verticalCenter: parent.verticalCenter
            presenter: root.presenter
            unit: root.unit
            pieceColors: Style.palette.gamePieces
            plainColor: Style.palette.primaryText
            Accessible.role: Accessible.Graphic
            Accessible.name: root.presenter.nextAccessibleText
            Accessible.ignored: !visible
        }

        Row {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6 * root.unit

            GameFigure {
                objectName: "lines"
                number: root.presenter.lines
                unit: root.unit
            }

            GameFigure {
                objectName: "tetrisLevel"
                number: root.presenter.level
                unit: root.unit
            }

            GameFigure {
                objectName: "tetrisBest"
                number: root.presenter.best
                unit: root.unit
            }
        }
    }
}
