import QtQuick
import Tidewatch.Ui

/*! Buttons to decrease and increase a value shown beside them: one tab stop, operated with the arrows, + and -. */
Item {
    id: root

    property bool canDecrease: true
    property bool canIncrease: true
    property string accessibleName

    /*! The displayed value. */
    property string valueText

    // For assistive technology, which looks these up by name.
    property real value: 0
    property real minimumValue: 0
    property real maximumValue: 0
    property real stepSize: 0

    signal decrease
    signal increase

    function less() {
        if (canDecrease)
            decrease();
    }

    function more() {
        if (canIncrease)
            increase();
    }

    implicitWidth: buttons.implicitWidth
    implicitHeight: 30
    // By keyboard only: a click on a button leaves the focus unchanged.
    activeFocusOnTab: true

    Accessible.role: Accessible.SpinBox
    Accessible.name: accessibleName
    Accessible.description: valueText
    Accessible.onDecreaseAction: less()
    Accessible.onIncreaseAction: more()

    Keys.onUpPressed: more()
    Keys.onRightPressed: more()
    Keys.onDownPressed: less()
    Keys.onLeftPressed: less()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Plus)
            more();
        else if (event.key === Qt.Key_Minus)
            less();
        else
            return;
        event.accepted = true;
    }

    Rectangle {
        anchors.fill: parent
        radius: Style.metrics.controlRadius
        color: "transparent"
        border.width: 1
        border.color: Style.palette.stroke
    }

    Row {
        id: buttons

        IconButton {
            objectName: "decrease"
            height: root.height
            symbol: "minus"
            symbolSide: 16
            accessibleName: root.accessibleName
            enabled: root.canDecrease
            focusPolicy: Qt.NoFocus
            autoRepeat: true
            Accessible.ignored: true
            onClicked: root.less()
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 1
            height: root.height - 14
            color: Style.palette.stroke
        }

        IconButton {
            objectName: "increase"
            height: root.height
            symbol: "plus"
            symbolSide: 16
            accessibleName: root.accessibleName
            enabled: root.canIncrease
            focusPolicy: Qt.NoFocus
            autoRepeat: true
            Accessible.ignored: true
            onClicked: root.more()
        }
    }

    FocusRing {
        shown: root.activeFocus
    }
}
