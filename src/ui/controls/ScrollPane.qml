import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    A scrollable column: by wheel, touch, scroll bar and the keys not handled by its content, never by dragging with
    the mouse. Scrolls to the item that gets the focus.
*/
Item {
    id: root

    default property alias content: column.data
    property alias spacing: column.spacing

    /*! The padding around the column. */
    property real padding: 0

    property alias contentY: flickable.contentY
    readonly property real contentHeight: flickable.contentHeight
    readonly property bool overflows: contentHeight > height

    readonly property real lineStep: 48
    readonly property Item focused: Window.activeFocusItem

    function scrollTo(y: real) {
        glide.stop();
        flickable.contentY = inside(y);
    }

    function scrollBy(distance: real) {
        glide.to = inside((glide.running ? glide.to : flickable.contentY) + distance);
        glide.restart();
    }

    function inside(y: real): real {
        return Math.max(0, Math.min(y, contentHeight - height));
    }

    function holds(item: Item): bool {
        let ancestor = item;
        while (ancestor !== null && ancestor !== column)
            ancestor = ancestor.parent;
        return ancestor === column;
    }

    function showFocused() {
        const item = focused;
        if (item === null || item === column || !holds(item))
            return;
        const margin = 16;
        const top = item.mapToItem(column, 0, 0).y + padding - margin;
        const bottom = top + item.height + 2 * margin;
        if (top < flickable.contentY || item.height + 2 * margin > height)
            scrollTo(top);
        else if (bottom > flickable.contentY + height)
            scrollTo(bottom - height);
    }

    function followFocus() {
        // A clicked item is in view already and must not move under the pointer.
        const control = focused as T.Control;
        if (control === null || control.focusReason !== Qt.MouseFocusReason)
            showFocused();
    }

    Accessible.role: Accessible.Pane
    Accessible.focusable: overflows
    activeFocusOnTab: overflows
    clip: true

    onFocusedChanged: followFocus()
    onHeightChanged: flickable.returnToBounds()
    onContentHeightChanged: flickable.returnToBounds()

    Keys.onUpPressed: scrollBy(-lineStep)
    Keys.onDownPressed: scrollBy(lineStep)
    Keys.onPressed: event => {
        const page = height - lineStep;
        if (event.key === Qt.Key_PageDown)
            scrollBy(page);
        else if (event.key === Qt.Key_PageUp)
            scrollBy(-page);
        else if (event.key === Qt.Key_Home)
            scrollTo(0);
        else if (event.key === Qt.Key_End)
            scrollTo(contentHeight);
        else
            return;
        event.accepted = true;
    }

    NumberAnimation {
        id: glide

        target: flickable
        property: "contentY"
        duration: Style.metrics.quickDuration
        easing.type: Easing.OutCubic
    }

    Flickable {
        id: flickable

        anchors.fill: parent
        // A mouse would drag it; the handlers below handle wheel and touch pad.
        interactive: false
        contentWidth: width
        contentHeight: column.implicitHeight + 2 * root.padding
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column

            x: root.padding
            y: root.padding
            width: flickable.width - 2 * root.padding
        }

        T.ScrollBar.vertical: SlimScrollBar {}
    }

    WheelHandler {
        acceptedDevices: PointerDevice.AllDevices
        onWheel: event => {
            // Touch pads report pixels, wheels notches of 120.
            if (event.pixelDelta.y !== 0)
                root.scrollTo(flickable.contentY - event.pixelDelta.y);
            else
                root.scrollBy(-event.angleDelta.y / 120 * 2 * root.lineStep);
        }
    }

    DragHandler {
        property real start: 0

        acceptedDevices: PointerDevice.TouchScreen
        target: null
        onActiveChanged: start = flickable.contentY
        onActiveTranslationChanged: {
            if (active)
                root.scrollTo(start - activeTranslation.y);
        }
    }

    FocusRing {
        shown: root.activeFocus
        anchors.margins: 1
    }
}
