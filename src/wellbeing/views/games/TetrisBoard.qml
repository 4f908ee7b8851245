import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The falling-blocks game: its board, and under it the next piece and the numbers. */
Column {
    id: root

    required property TetrisPresenter presenter

    /*! Side of a cell. */
    property real cell: 15

    width: field.width
    spacing: Style.metrics.tightSpacing

    TetrisField {
        id: field

        objectName: "tetrisField"
        anchors.horizontalCenter: parent.horizontalCenter
        presenter: root.presenter
        cell: root.cell
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
        }
    }

    Item {
        width: parent.width
        height: 16

        PlainText {
            id: nextTitle

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.presenter.nextTitle
            font: Style.sans(8, Style.Medium)
            color: Style.legibleOn(Style.palette.textGround, Style.palette.mute)
        }

        NextPiece {
            objectName: "nextPiece"
            anchors.left: nextTitle.right
            anchors.leftMargin: 3
            anchors.verticalCenter: parent.verticalCenter
            presenter: root.presenter
            pieceColors: Style.palette.gamePieces
            plainColor: Style.palette.primaryText
            Accessible.role: Accessible.Graphic
            Accessible.name: root.presenter.nextAccessibleText
            Accessible.ignored: !visible
        }

        Row {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6

            GameFigure {
                objectName: "lines"
                number: root.presenter.lines
            }

            GameFigure {
                objectName: "tetrisLevel"
                number: root.presenter.level
            }

            GameFigure {
                objectName: "tetrisBest"
                number: root.presenter.best
            }
        }
    }
}
