pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! An external volume, with a button to eject it. */
RowLayout {
    id: root

    required property systemVolume row
    property string freeCaption
    property string ejectingText

    signal ejectRequested

    spacing: 10

    Symbol {
        name: "externaldrive"
        side: 18
        color: Style.palette.mute
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2
        Accessible.role: Accessible.StaticText
        Accessible.name: root.row.name + ": " + free.text

        NameText {
            Layout.fillWidth: true
            text: root.row.name
            font: Style.sans(13, Style.Medium)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            id: free

            Layout.fillWidth: true
            text: root.row.isEjecting ? root.ejectingText : root.row.free + " " + root.freeCaption
            elide: Text.ElideRight
            font: Style.sans(11, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
    }
    IconButton {
        id: eject

        objectName: "eject"
        symbol: "eject.fill"
        enabled: !root.row.isEjecting
        accessibleName: root.row.ejectHelp
        onClicked: root.ejectRequested()

        // Created only if needed.
        Repeater {
            model: eject.hovered ? 1 : 0
            delegate: Bubble {
                objectName: "help"
                text: root.row.ejectHelp
            }
        }
    }
}
