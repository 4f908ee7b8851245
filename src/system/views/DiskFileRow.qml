import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! A large file, with buttons to show it and to move it to the trash. */
FocusScope {
    id: root

    required property diskRow row
    property string revealText
    property string trashText

    signal revealed
    signal trashed

    implicitHeight: 40
    Accessible.role: Accessible.ListItem
    Accessible.name: row.accessibleText

    HoverHandler {
        id: pointer
    }
    Rectangle {
        anchors.fill: parent
        radius: Style.metrics.controlRadius
        color: pointer.hovered || root.activeFocus ? Style.palette.cardSubtle : "transparent"
    }
    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 4
        spacing: 12

        NameText {
            objectName: "name"
            Layout.fillWidth: true
            text: root.row.name
            elide: Text.ElideMiddle
            font: Style.sans(14, Style.Regular)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            Layout.preferredWidth: 68
            horizontalAlignment: Text.AlignRight
            text: root.row.size
            font: Style.mono(13, Style.Regular)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            Layout.preferredWidth: 84
            horizontalAlignment: Text.AlignRight
            text: root.row.age
            font: Style.mono(13, Style.Regular)
            color: root.row.ageColor.valid ? Style.legibleOn(Style.palette.textGround, root.row.ageColor) : Style.palette.secondaryText
            Accessible.ignored: true
        }
        LinkButton {
            objectName: "reveal"
            focus: true
            text: root.revealText
            accessibleName: root.revealText + ": " + root.row.name
            onClicked: root.revealed()
        }
        LinkButton {
            objectName: "trash"
            text: root.trashText
            accessibleName: root.trashText + ": " + root.row.name
            onClicked: root.trashed()
        }
    }
}
