import QtQuick
import QtQuick.Templates as T
import Tidewatch.Style

/*!
    A rounded ground for what belongs together. Give it one child: the card is by itself as large as that child
    wants to be, and the child may fill it (`anchors.fill: parent`).
*/
T.Pane {
    id: root

    property color color: Style.palette.card

    implicitWidth: Math.max(implicitBackgroundWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, contentHeight + topPadding + bottomPadding)
    padding: 20

    background: Rectangle {
        radius: Style.measures.cardRadius
        color: root.color
        border.width: 1
        border.color: Style.palette.stroke
    }
}
