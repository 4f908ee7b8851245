import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    Content between the cards, on a ground that keeps it legible over a busy background and is invisible over a
    quiet one. Takes one child, which may fill it (`anchors.fill: parent`).
*/
T.Pane {
    id: root

    readonly property bool seen: Style.palette.ground.a > 0

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    // Aligned with the content of the cards.
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
