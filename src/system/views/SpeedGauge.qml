import QtQuick
import Tidewatch.System
import Tidewatch.Ui

/*! A dial with a needle and, under its hub, the value with a caption and a line of text. */
Item {
    id: root

    /*! In megabits per second. */
    property real value: 0
    property real scaleMax: 50
    property color track: Style.palette.stroke
    property color textColor: Style.palette.primaryText
    property color muteColor: Style.palette.secondaryText
    property string valueText
    property string caption
    property string subline
    property real size: 200

    /*! Pixels per point of the small texts and the ticks. */
    property real unit: 1

    /*! Degrees. */
    property real sweep: 270

    implicitWidth: size
    implicitHeight: words.y + words.implicitHeight
    Accessible.role: Accessible.Indicator
    Accessible.name: valueText + " " + caption
    Accessible.description: subline

    GaugeDial {
        id: dial

        anchors.horizontalCenter: parent.horizontalCenter
        width: root.size
        height: root.size
        value: root.value
        scaleMax: root.scaleMax
        sweep: root.sweep
        shownAngle: angle
        thickness: root.size * 0.055
        unit: root.unit
        color: Style.palette.tierProductive
        track: root.track
        tickColor: root.muteColor

        // Only while a test changes the value; otherwise nothing moves.
        Behavior on shownAngle {
            NumberAnimation {
                duration: Style.metrics.duration
                easing.type: Easing.OutCubic
            }
        }
    }
    Needle {
        objectName: "needle"
        anchors.centerIn: dial
        width: root.size * 0.66
        height: width
        angle: dial.shownAngle
        color: root.textColor
    }
    Column {
        id: words

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.size * 0.66
        spacing: 2 * root.unit

        PlainText {
            objectName: "value"
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.valueText
            font: Style.mono(root.size * 0.15, Style.Light)
            color: root.textColor
        }
        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.caption
            font: Style.sans(Math.max(10 * root.unit, root.size * 0.06), Style.Medium)
            color: root.muteColor
        }
        PlainText {
            objectName: "subline"
            visible: text !== ""
            width: root.width
            topPadding: 6 * root.unit
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: root.subline
            font: Style.sans(12 * root.unit, Style.Regular)
            color: root.muteColor
        }
    }
}
