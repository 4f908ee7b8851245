import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The mini-arcade as a card, for a narrow column. */
Card {
    id: root

    required property GamesPresenter presenter

    /*! Given by a pane. */
    property string title

    padding: 0

    GamesPanel {
        anchors.fill: parent
        presenter: root.presenter
    }
}
