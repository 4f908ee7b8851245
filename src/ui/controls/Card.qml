import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    A rounded card. Takes one child: the card's implicit size is that of the child, which may fill it
    (`anchors.fill: parent`).

    For assistive technology set `accessibleText` and `accessibleRole`: the template overrides the role of the card
    itself.
*/
T.Pane {
    id: root

    property color color: Style.palette.card

    /*! If empty, only the card's content is accessible. */
    property string accessibleText
    property int accessibleRole: Accessible.Grouping

    implicitWidth: Math.max(implicitBackgroundWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, contentHeight + topPadding + bottomPadding)
    padding: 20
    Accessible.ignored: true

    contentItem: Item {
        Accessible.role: root.accessibleRole
        Accessible.name: root.accessibleText
        Accessible.ignored: root.accessibleText === ""
    }

    background: Rectangle {
        radius: Style.metrics.cardRadius
        color: Style.palette.ground

        Rectangle {
            anchors.fill: parent
            radius: Style.metrics.cardRadius
            color: root.color
            border.width: 1
            border.color: Style.palette.stroke
        }
    }
}
