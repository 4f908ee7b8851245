import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    What lies between the cards, on the ground that makes it legible over a lively background; where the background
    is quiet, nothing of it is seen. Give it one child, which may fill it (`anchors.fill: parent`).
*/
T.Pane {
    id: root

    readonly property bool seen: Style.palette.ground.a > 0

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    // In line with what stands in the cards.
    horizontalPadding: seen ? 20 : 0
    verticalPadding: seen ? 8 : 0
    Accessible.ignored: true

    contentItem: Item {
        Accessible.ignored: true
    }

    background: Rectangle {
        radius: Style.metrics.cardRadius
        color: Style.palette.ground
    }
}
