import QtQuick
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The day's score in a ring, and its comparison with earlier days. */
Card {
    id: root

    required property OverviewPresenter presenter

    accessibleText: root.presenter.scoreAccessibleText

    Item {
        anchors.fill: parent
        implicitWidth: 196
        implicitHeight: 260

        Heading {
            id: heading

            anchors.horizontalCenter: parent.horizontalCenter
            text: root.presenter.scoreTitle
        }
        DonutRing {
            id: ring

            readonly property real side: Math.min(parent.width, parent.height - heading.height - 60)

            anchors.horizontalCenter: parent.horizontalCenter
            y: heading.height + (comparisonLine.y - heading.height - height) / 2
            width: side
            height: side
            fraction: root.presenter.scoreFraction
            color: root.presenter.scoreColor
            track: Style.palette.stroke
            thickness: 10

            Column {
                anchors.centerIn: parent
                spacing: 2

                PlainText {
                    objectName: "score"
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: root.presenter.score
                    font: Style.mono(38, Style.Light)
                    color: Style.palette.primaryText
                }
                PlainText {
                    objectName: "total"
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: root.presenter.total
                    font: Style.mono(12, Style.Regular)
                    color: Style.palette.secondaryText
                }
            }
        }
        PlainText {
            id: comparisonLine

            objectName: "comparison"
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            text: root.presenter.comparison
            font: Style.mono(12, Style.Medium)
            color: Style.legibleOn(Style.palette.textGround, root.presenter.comparisonColor)
        }
    }
}
