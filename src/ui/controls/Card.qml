import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    A rounded ground for what belongs together. Give it one child: the card is by itself as large as that child
    wants to be, and the child may fill it (`anchors.fill: parent`).

    What it is for assistive technology goes into `accessibleText` and `accessibleRole`: the template insists on a role of its
    own for itself.
*/
T.Pane {
    id: root

    property color color: Style.palette.card

    /*! Without it only what lies in the card speaks. */
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
