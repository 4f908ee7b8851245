import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! A search field. Escape clears it, or propagates if it is empty. */
T.TextField {
    id: root

    property alias placeholder: root.placeholderText

    /*! The accessible name of the clear button. */
    property string clearName: "Borrar búsqueda"

    signal edited(string text)

    function empty() {
        clear();
        edited("");
    }

    implicitWidth: 220
    implicitHeight: 32
    leftPadding: 34
    rightPadding: 32
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    activeFocusOnTab: true
    font: Style.sans(14, Style.Regular)
    color: Style.palette.primaryText
    placeholderTextColor: Style.palette.strongMute
    selectionColor: Style.palette.tierProductive
    selectedTextColor: Style.palette.onFill

    Accessible.role: Accessible.EditableText
    Accessible.name: placeholder
    Accessible.searchEdit: true

    Keys.onEscapePressed: event => {
        if (text === "")
            event.accepted = false;
        else
            empty();
    }

    onTextEdited: edited(text)

    background: Rectangle {
        radius: Style.metrics.chipRadius
        color: Style.palette.cardSubtle
        border.width: 1
        border.color: root.activeFocus ? Style.palette.strongMute : Style.palette.stroke
    }

    Symbol {
        x: 9
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        side: 18
        color: Style.palette.strongMute
    }

    PlainText {
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        visible: root.text === "" && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    IconButton {
        objectName: "clear"
        anchors.right: parent.right
        anchors.rightMargin: 3
        anchors.verticalCenter: parent.verticalCenter
        width: 26
        height: 26
        visible: root.text !== ""
        symbol: "xmark"
        symbolSide: 16
        accessibleName: root.clearName
        onClicked: {
            root.empty();
            root.forceActiveFocus();
        }
    }

    FocusRing {
        shown: root.activeFocus && (root.focusReason === Qt.TabFocusReason
                                    || root.focusReason === Qt.BacktabFocusReason
                                    || root.focusReason === Qt.ShortcutFocusReason)
        controlRadius: Style.metrics.chipRadius
    }
}
