pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    A choice of a few values, side by side. The arrow keys select; the owner updates `currentIndex` in response to
    `activated`.
*/
Item {
    id: root

    property list<string> labels
    property int currentIndex: 0
    property string accessibleName

    signal activated(int index)

    function choose(index: int) {
        const target = Math.min(labels.length - 1, Math.max(0, index));
        if (target === currentIndex)
            return;
        activated(target);
        segments.itemAt(target).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: row.implicitWidth + 4
    implicitHeight: 32

    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName

    Rectangle {
        anchors.fill: parent
        radius: Style.metrics.chipRadius
        color: "transparent"
        border.width: 1
        border.color: Style.palette.stroke
    }

    Row {
        id: row

        x: 2
        height: parent.height

        Repeater {
            id: segments

            model: root.labels.length

            T.RadioButton {
                id: segment

                required property int index

                readonly property bool chosen: index === root.currentIndex

                y: 2
                implicitWidth: Math.max(56, implicitContentWidth + leftPadding + rightPadding)
                height: row.height - 4
                horizontalPadding: 14
                // A single tab stop: the selected segment. The focused one must remain a tab stop.
                focusPolicy: chosen || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                hoverEnabled: true
                text: root.labels[index]

                checked: chosen

                Accessible.name: text
                Accessible.onPressAction: clicked()
                Accessible.onToggleAction: clicked()

                Keys.onLeftPressed: root.choose(index - 1)
                Keys.onRightPressed: root.choose(index + 1)
                Keys.onUpPressed: root.choose(index - 1)
                Keys.onDownPressed: root.choose(index + 1)

                onClicked: {
                    if (!chosen)
                        root.activated(index);
                }

                contentItem: PlainText {
                    text: segment.text
                    font: Style.sans(13, Style.Medium)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    color: segment.chosen || segment.hovered ? Style.palette.primaryText : Style.palette.strongMute
                    Accessible.ignored: true
                }

                background: Rectangle {
                    radius: Style.metrics.controlRadius
                    color: segment.chosen ? Style.palette.cardSubtle : "transparent"
                    border.width: segment.chosen ? 1 : 0
                    border.color: Style.palette.stroke
                }

                FocusRing {
                    shown: segment.visualFocus
                }
            }
        }
    }
}
