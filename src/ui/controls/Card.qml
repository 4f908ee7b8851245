import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*!
    A rounded ground for what belongs together. Give it one child: the card is by itself as large as that child
    wants to be, and the child may fill it (`anchors.fill: parent`).

    What it is for assistive technology goes into `spoken` and `spokenRole`: the template insists on a role of its
    own for itself.
*/
T.Pane {
    id: root

    property color color: Style.palette.card

    /*! Without it only what lies in the card speaks. */
    property string spoken
    property int spokenRole: Accessible.Grouping

    implicitWidth: Math.max(implicitBackgroundWidth, contentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, contentHeight + topPadding + bottomPadding)
    padding: 20
    Accessible.ignored: true

    contentItem: Item {
        Accessible.role: root.spokenRole
        Accessible.name: root.spoken
        Accessible.ignored: root.spoken === ""
    }

    background: Rectangle {
        radius: Style.measures.cardRadius
        color: Style.palette.ground

        Rectangle {
            anchors.fill: parent
            radius: Style.measures.cardRadius
            color: root.color
            border.width: 1
            border.color: Style.palette.stroke
        }
    }
}
