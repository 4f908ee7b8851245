import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*!
    The mini-arcade: the game gate, or the game that is being played. Whoever shows it tells its presenter when it
    appears and disappears.
*/
FocusScope {
    id: root

    required property GamesPresenter presenter

    /*! Pixels per point of the layout. */
    property real unit: 1

    /*! Given by a pane. */
    property string title

    readonly property bool playing: presenter.face === GamesPresenter.Playing

    implicitWidth: 190 * unit
    implicitHeight: content.implicitHeight + 24 * unit
    Accessible.role: Accessible.Grouping
    Accessible.name: presenter.accessibleText

    Column {
        id: content

        anchors.horizontalCenter: parent.horizontalCenter
        y: 12 * root.unit
        width: Math.min(root.width, 214 * root.unit) - 24 * root.unit
        spacing: 10 * root.unit

        Item {
            width: parent.width
            height: (root.playing ? 16 : 24) * root.unit

            IconButton {
                objectName: "previous"
                anchors.left: parent.left
                visible: !root.playing
                width: 24 * root.unit
                height: 24 * root.unit
                symbolSide: 20 * root.unit
                symbol: "chevron.left"
                accessibleName: root.presenter.previousText
                onClicked: root.presenter.switchGame()
            }

            Symbol {
                objectName: "inGame"
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                visible: root.playing
                name: "gamecontroller.fill"
                side: 16 * root.unit
                color: Style.legibleOn(Style.palette.textGround, Style.palette.tierProductive)
            }

            PlainText {
                objectName: "game"
                anchors.centerIn: parent
                text: root.presenter.title
                font: Style.tracked(Style.serif(10 * root.unit, Style.Medium), 1.8 * root.unit)
                color: Style.palette.strongMute
                Accessible.role: Accessible.Heading
                Accessible.name: text
                Accessible.ignored: !visible
            }

            PlainText {
                objectName: "score"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: root.playing
                text: root.presenter.current.scoreText
                font: Style.mono(13 * root.unit, Style.Light)
                color: Style.palette.primaryText
                Accessible.role: Accessible.StaticText
                Accessible.name: root.presenter.current.scoreAccessibleText
                Accessible.ignored: !visible
            }

            IconButton {
                objectName: "next"
                anchors.right: parent.right
                visible: !root.playing
                width: 24 * root.unit
                height: 24 * root.unit
                symbolSide: 20 * root.unit
                symbol: "chevron.right"
                accessibleName: root.presenter.nextText
                onClicked: root.presenter.switchGame()
            }
        }

        GateView {
            objectName: "gate"
            width: parent.width
            visible: !root.playing
            presenter: root.presenter
            unit: root.unit
        }

        TetrisBoard {
            objectName: "tetris"
            width: parent.width
            visible: root.playing && root.presenter.game === GamesPresenter.Tetris
            presenter: root.presenter.tetris
            unit: root.unit
        }

        BreakoutBoard {
            objectName: "breakout"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.playing && root.presenter.game === GamesPresenter.Breakout
            presenter: root.presenter.breakout
            unit: root.unit
        }

        GameControls {
            objectName: "controls"
            width: parent.width
            visible: root.playing
            presenter: root.presenter
            unit: root.unit
        }
    }
}
