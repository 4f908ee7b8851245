import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! A labelled on/off setting. The owner updates `checked` in response to `toggled`. */
Item {
    id: root

    property string text
    property bool checked: false

    signal toggled(bool checked)

    implicitWidth: control.implicitWidth
    implicitHeight: control.implicitHeight

    T.AbstractButton {
        id: control

        readonly property real gap: 16

        function flip() {
            if (!enabled)
                return;
            toggle();
            request();
        }

        /*! Passes the new state on; the template has toggled itself, so the owner's value is restored. */
        function request() {
            root.toggled(checked);
            checked = root.checked;
        }

        anchors.fill: parent
        implicitWidth: label.implicitWidth + gap + groove.width
        implicitHeight: 30
        checkable: true
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        text: root.text

        Accessible.name: text
        Accessible.onPressAction: flip()
        Accessible.onToggleAction: flip()

        Keys.onReturnPressed: flip()
        Keys.onEnterPressed: flip()

        onToggled: request()

        Binding on checked {
            value: root.checked
        }

        PlainText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, groove.x - control.gap)
            text: root.text
            font: Style.sans(14, Style.Regular)
            color: root.enabled ? Style.palette.primaryText : Style.palette.muteSoft
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Rectangle {
            id: groove

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 38
            height: 22
            radius: height / 2
            color: root.checked ? Style.palette.tierProductive : Style.palette.cardSubtle
            border.width: root.checked ? 0 : 1
            border.color: Style.palette.mute

            Rectangle {
                x: root.checked ? groove.width - width - 3 : 3
                y: 3
                width: 16
                height: 16
                radius: 8
                color: root.checked ? Style.palette.onFill : Style.palette.strongMute

                Behavior on x {
                    NumberAnimation {
                        duration: Style.metrics.quickDuration
                        easing.type: Easing.OutCubic
                    }
                }
            }

            FocusRing {
                shown: control.visualFocus
                controlRadius: groove.radius
            }
        }
    }
}
