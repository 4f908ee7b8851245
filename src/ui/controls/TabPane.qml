import QtQuick
import Tidewatch.Ui

/*! What the views of tabs share: they scroll, and have the tab's title. */
ScrollPane {
    required property string title

    padding: 28
    Accessible.name: title
}
