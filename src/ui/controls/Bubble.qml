import QtQuick
import QtQuick.Templates as T
import Tidewatch.Ui

/*! A tool tip below its item, shown after hovering for a moment, above everything else. */
Item {
    id: root

    property string text

    readonly property real maxWidth: 420

    anchors.fill: parent
    Accessible.ignored: true

    T.ToolTip {
        y: root.height + 6
        implicitWidth: Math.min(root.maxWidth, implicitContentWidth + leftPadding + rightPadding)
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        // Its distance from the edges of the window.
        margins: 8
        horizontalPadding: 10
        verticalPadding: 7
        delay: 500
        visible: true
        closePolicy: T.Popup.NoAutoClose

        contentItem: PlainText {
            text: root.text
            font: Style.sans(13, Style.Regular)
            color: Style.palette.primaryText
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        background: Rectangle {
            radius: Style.metrics.controlRadius
            // The cards of some themes are translucent.
            color: Style.palette.windowBackground
            border.width: 1
            border.color: Style.palette.mute

            Rectangle {
                anchors.fill: parent
                anchors.margins: 1
                radius: Style.metrics.controlRadius
                color: Style.palette.cardSubtle
            }
        }
    }
}
