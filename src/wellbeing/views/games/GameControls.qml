pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The buttons of a running game, the first one on the left and the others on the right; after it, the way out. */
Item {
    id: root

    required property GamesPresenter presenter
    readonly property GamePresenter game: presenter.current

    /*! Pixels per point of the layout. */
    property real unit: 1

    implicitHeight: 24 * unit

    Repeater {
        id: buttons

        model: root.game.over ? null : root.game.controls

        delegate: IconButton {
            required property int index
            required property gameControl row

            objectName: "control" + index
            x: index === 0 ? 0 : root.width - (buttons.count - index) * width
            width: 28 * root.unit
            height: root.height
            symbol: row.symbol
            symbolSide: 18 * root.unit
            accessibleName: row.name
            onClicked: root.game.press(index)
        }
    }

    PressButton {
        objectName: "leave"
        anchors.centerIn: parent
        height: root.height
        horizontalPadding: 16 * root.unit
        visible: root.game.over
        text: root.presenter.leaveText
        contentItem: PlainText {
            text: root.presenter.leaveText
            font: Style.sans(11 * root.unit, Style.Medium)
            color: Style.palette.primaryText
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
        onClicked: root.presenter.leave()
    }
}
