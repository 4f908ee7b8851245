pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! A tab bar. The owner updates `currentIndex` in response to `activated`. */
Row {
    id: root

    property list<string> labels
    property int currentIndex: 0

    signal activated(int index)

    function choose(index: int) {
        if (index < 0 || index >= labels.length)
            return;
        activated(index);
        tabs.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: 28
    Accessible.role: Accessible.PageTabList
    Accessible.name: "Pestañas"

    Repeater {
        id: tabs

        model: root.labels.length
        delegate: T.TabButton {
            id: tab

            required property int index
            readonly property bool current: index === root.currentIndex

            implicitWidth: implicitContentWidth
            implicitHeight: 40
            text: root.labels[index]
            hoverEnabled: true
            // A single tab stop: the current tab.
            focusPolicy: current || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            checkable: false
            autoExclusive: false
            Accessible.name: text
            Accessible.selectable: true
            Accessible.selected: current
            Accessible.onPressAction: root.activated(index)
            onClicked: root.activated(index)
            Keys.onLeftPressed: root.choose(index - 1)
            Keys.onRightPressed: root.choose(index + 1)

            contentItem: PlainText {
                text: tab.text
                verticalAlignment: Text.AlignVCenter
                font: Style.sans(14, Style.Medium)
                color: tab.current || tab.hovered ? Style.palette.primaryText : Style.palette.secondaryText
                Accessible.ignored: true
            }

            Rectangle {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                height: 2
                radius: 1
                visible: tab.current
                color: Style.palette.tierProductive
            }
            FocusRing {
                shown: tab.visualFocus
            }
        }
    }
}
