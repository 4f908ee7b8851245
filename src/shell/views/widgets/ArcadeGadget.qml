import QtQuick
import Tidewatch.Shell
import Tidewatch.Wellbeing

/*! The mini-arcade, played with its buttons and by dragging the paddle. */
Item {
    id: root

    required property ArcadeGadgetPresenter presenter

    GamesPanel {
        anchors.fill: parent
        presenter: root.presenter.games
        unit: root.width / root.presenter.panelWidth
    }
}
