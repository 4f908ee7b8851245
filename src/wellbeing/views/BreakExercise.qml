import QtQuick
import Tidewatch.Ui
import Tidewatch.Wellbeing

/*! The exercise for the break. */
Rectangle {
    id: root

    required property BreakPresenter presenter

    readonly property color accent: Style.palette.tierProductive

    implicitHeight: Math.max(picture.height, words.implicitHeight) + 40
    radius: Style.metrics.cardRadius
    color: Qt.alpha(accent, 0.1)
    border.width: 1
    border.color: Qt.alpha(accent, 0.3)

    Item {
        id: picture

        x: 20
        y: 20
        width: 56
        height: 56

        Symbol {
            anchors.centerIn: parent
            name: root.presenter.icon
            side: 56
            color: Style.legibleOn(Style.palette.textGround, root.accent)
        }
    }

    Column {
        id: words

        anchors.left: picture.right
        anchors.right: parent.right
        anchors.leftMargin: 20
        anchors.rightMargin: 20
        y: 20
        spacing: 8

        PlainText {
            objectName: "title"
            width: parent.width
            text: root.presenter.title
            font: Style.serif(20, Style.Medium)
            color: Style.legibleOn(Style.palette.textGround, root.accent)
            wrapMode: Text.Wrap
        }

        PlainText {
            objectName: "instruction"
            width: parent.width
            text: root.presenter.instruction
            font: Style.sans(14, Style.Regular)
            lineHeight: 1.3
            color: Style.palette.primaryText
            wrapMode: Text.Wrap
        }

        PlainText {
            objectName: "motivational"
            width: parent.width
            text: root.presenter.motivational
            font: Style.sans(13, Style.Medium)
            color: Style.legibleOn(Style.palette.textGround, root.accent)
            wrapMode: Text.Wrap
        }
    }
}
