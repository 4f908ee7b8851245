import QtQuick
import QtQuick.Layouts
import Tidewatch.Ui

/*! The header of a detail panel: a button back to the overview, the panel's symbol and its title. */
RowLayout {
    id: root

    required property string title

    /*! The name of a symbol. */
    required property string icon
    required property color color
    required property string backText

    signal back

    function focusButton(reason: int) {
        button.forceActiveFocus(reason);
    }

    spacing: 6

    IconButton {
        id: button

        objectName: "back"
        implicitWidth: 26
        implicitHeight: 26
        symbol: "chevron.left"
        accessibleName: root.backText
        onClicked: root.back()
    }
    Symbol {
        name: root.icon
        side: 18
        color: Style.legibleOn(Style.palette.textGround, root.color)
    }
    Heading {
        objectName: "panelTitle"
        Layout.fillWidth: true
        text: root.title
        wrapMode: Text.WordWrap
        font: Style.sans(14, Style.Semibold)
        color: Style.palette.primaryText
    }
}
