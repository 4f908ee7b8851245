import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*!
    The break alert, an overlay over the whole window: intercepts all clicks, wheel events and keys, and is dismissed by
    its button only. Restores the focus afterwards.
*/
FocusScope {
    id: root

    required property BreakPresenter presenter

    readonly property real cardRadius: 18
    readonly property bool seen: visible && Window.visibility !== Window.Hidden
                                 && Window.visibility !== Window.Minimized

    /*! The item that had the focus before the alert. */
    property Item previousFocus: null

    function takeFocus() {
        if (!presenter.alertActive || Window.window === null || button.activeFocus)
            return;
        previousFocus = Window.activeFocusItem;
        button.forceActiveFocus(Qt.TabFocusReason);
    }

    function restoreFocus() {
        // Otherwise the enclosing focus scope would return the focus to it.
        focus = false;
        if (previousFocus !== null)
            previousFocus.forceActiveFocus(Qt.OtherFocusReason);
        previousFocus = null;
    }

    visible: presenter.alertActive

    Accessible.role: Accessible.Dialog
    Accessible.name: presenter.headline
    Accessible.description: presenter.subline
    Accessible.ignored: !visible

    Keys.onShortcutOverride: event => event.accepted = true
    Keys.onPressed: event => event.accepted = true
    Keys.onReleased: event => event.accepted = true

    Window.onWindowChanged: arrival.restart()

    Timer {
        id: arrival

        // The focus must not be changed while the views are still being added to the window.
        interval: 0
        onTriggered: root.takeFocus()
    }

    Connections {
        target: root.presenter

        function onAlertActiveChanged() {
            if (root.presenter.alertActive)
                root.takeFocus();
            else
                root.restoreFocus();
        }
    }

    Rectangle {
        objectName: "backdrop"
        anchors.fill: parent
        color: Qt.alpha("black", 0.62)

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        objectName: "card"
        anchors.centerIn: parent
        width: Math.min(480, parent.width - 32)
        height: content.implicitHeight + 56
        radius: root.cardRadius
        // The cards of some themes are translucent.
        color: Style.palette.windowBackground

        Rectangle {
            anchors.fill: parent
            radius: root.cardRadius
            color: Style.palette.card
            border.width: 1
            border.color: Style.palette.stroke
        }

        Column {
            id: content

            x: 28
            y: 28
            width: parent.width - 56
            spacing: 0

            BreakBadge {
                anchors.horizontalCenter: parent.horizontalCenter
                running: root.seen
            }

            PlainText {
                objectName: "headline"
                width: parent.width
                topPadding: 16
                text: root.presenter.headline
                font: Style.tracked(Style.serif(24, Style.Semibold), 3)
                color: Style.legibleOn(Style.palette.textGround, Style.palette.tierDistracting)
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
                Accessible.name: text
                Accessible.ignored: !visible
            }

            PlainText {
                objectName: "subline"
                width: parent.width
                topPadding: 6
                bottomPadding: 20
                text: root.presenter.subline
                font: Style.sans(14, Style.Regular)
                color: Style.palette.primaryText
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }

            BreakExercise {
                width: parent.width
                presenter: root.presenter
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                height: 56
                spacing: Style.metrics.spacing

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: "clock.badge.exclamationmark"
                    side: 18
                    color: Style.legibleOn(Style.palette.textGround, Style.palette.tierDistracting)
                }

                PlainText {
                    objectName: "sitting"
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.presenter.sittingText
                    font: Style.mono(13, Style.Regular)
                    color: Style.legibleOn(Style.palette.textGround, Style.palette.tierDistracting)
                }
            }

            TextButton {
                id: button

                objectName: "dismiss"
                anchors.horizontalCenter: parent.horizontalCenter
                implicitHeight: 40
                focus: true
                primary: true
                symbol: "checkmark.circle.fill"
                text: root.presenter.dismissText

                Keys.onShortcutOverride: event => event.accepted = true
                Keys.onTabPressed: event => event.accepted = true
                Keys.onBacktabPressed: event => event.accepted = true

                onClicked: root.presenter.dismiss()
            }
        }
    }
}
