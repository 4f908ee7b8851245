import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! What the detail panels share: they scroll, and begin with the header of their presenter. */
ScrollPane {
    id: root

    required property DetailPresenter header

    /*! Given by a pane. */
    property string title

    default property alias sections: column.data

    function focusBack(reason: int) {
        backHeader.focusButton(reason);
    }

    padding: 12
    Accessible.name: title

    Keys.onEscapePressed: root.header.back()

    ColumnLayout {
        id: column

        width: parent.width
        spacing: 14

        BackHeader {
            id: backHeader

            Layout.fillWidth: true
            title: root.header.title
            icon: root.header.symbol
            color: root.header.color
            backText: root.header.backText
            onBack: root.header.back()
        }
    }
}
