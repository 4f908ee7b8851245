import QtQuick
import QtQuick.Templates as T
import Tidewatch.Style

/*! Less and more of a value that is shown beside it: one stop of the tabulator, worked with the arrows, + and -. */
T.Control {
    id: root

    property bool canDecrease: true
    property bool canIncrease: true
    property string accessibleName

    /*! The value as it is shown. */
    property string valueText

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

    implicitWidth: implicitContentWidth
    implicitHeight: 30
    focusPolicy: Qt.StrongFocus

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

    contentItem: Row {
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

    background: Rectangle {
        radius: Style.measures.controlRadius
        color: "transparent"
        border.width: 1
        border.color: Style.palette.stroke
    }

    FocusRing {
        shown: root.visualFocus
    }
}
