import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tidewatch.Analysis
import Tidewatch.Ui

/*! A row of the table: an application. The right button, the menu key and Return open its context menu. */
T.ItemDelegate {
    id: root

    required property appDetails row

    signal menuRequested(point at)

    function requestMenu(x: real, y: real) {
        menuRequested(mapToGlobal(x, y));
    }

    implicitHeight: 40
    leftPadding: 12
    rightPadding: 12
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.accessibleText
    Accessible.focusable: true
    Accessible.onPressAction: requestMenu(width / 2, height)

    Keys.onMenuPressed: requestMenu(48, height)
    Keys.onReturnPressed: requestMenu(48, height)
    Keys.onEnterPressed: requestMenu(48, height)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier) {
            requestMenu(48, height);
            event.accepted = true;
        }
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.requestMenu(eventPoint.position.x, eventPoint.position.y);
        }
    }

    background: Rectangle {
        radius: Style.metrics.controlRadius
        color: root.hovered || root.activeFocus ? Style.palette.cardSubtle : "transparent"
    }

    contentItem: RowLayout {
        spacing: 12

        AppIconView {
            Layout.preferredWidth: 20
            Layout.preferredHeight: 20
            iconName: root.row.iconName
            symbolName: root.row.symbolName
            color: Style.palette.mute
            side: 20
        }
        NameText {
            objectName: "name"
            Layout.fillWidth: true
            text: root.row.name
            font: Style.sans(14, Style.Regular)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        Rectangle {
            Layout.preferredWidth: 8
            Layout.preferredHeight: 8
            radius: 4
            color: root.row.color
        }
        PlainText {
            objectName: "tier"
            Layout.preferredWidth: 104
            text: root.row.tier
            elide: Text.ElideRight
            font: Style.sans(13, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
        PlainText {
            objectName: "time"
            Layout.preferredWidth: 84
            horizontalAlignment: Text.AlignRight
            text: root.row.time
            font: Style.mono(13, Style.Regular)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            objectName: "share"
            Layout.preferredWidth: 48
            horizontalAlignment: Text.AlignRight
            text: root.row.share
            font: Style.mono(13, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
    }

    FocusRing {
        shown: root.visualFocus
    }
}
