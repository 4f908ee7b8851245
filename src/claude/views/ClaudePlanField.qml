import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! The field for the price of the plan. Return saves, Escape cancels. */
T.TextField {
    id: root

    signal saved
    signal cancelled

    implicitWidth: 120
    implicitHeight: 36
    leftPadding: 12
    rightPadding: 12
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    activeFocusOnTab: true
    maximumLength: 12
    font: Style.mono(16, Style.Regular)
    color: Style.palette.primaryText
    placeholderTextColor: Style.palette.strongMute
    selectionColor: Style.palette.tierProductive
    selectedTextColor: Style.palette.onFill

    Accessible.role: Accessible.EditableText
    Accessible.name: "Precio del plan en dólares al mes"

    Keys.onReturnPressed: saved()
    Keys.onEnterPressed: saved()
    Keys.onEscapePressed: cancelled()

    background: Rectangle {
        radius: Style.metrics.chipRadius
        color: Style.palette.cardSubtle
        border.width: 1
        border.color: root.activeFocus ? Style.palette.strongMute : Style.palette.stroke
    }

    PlainText {
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        visible: root.text === "" && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
