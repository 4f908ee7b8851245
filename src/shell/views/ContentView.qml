pragma ComponentBehavior: Bound

import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! The floating clock. Laid out at the theme's size and scaled to fit its own. */
Item {
    id: root

    required property ClockPresenter presenter

    /*! Pixels per point of the theme's layout. */
    readonly property real unit: Math.min(width / presenter.panelWidth, height / presenter.panelHeight)

    implicitWidth: presenter.panelWidth
    implicitHeight: presenter.panelHeight

    Accessible.role: Accessible.Clock
    Accessible.name: root.presenter.accessibleText

    PanelBackground {
        anchors.fill: parent
        visible: !root.presenter.backgroundMoves
        kind: root.presenter.background
        cornerRadius: root.presenter.cornerRadius
        unit: root.unit
        translucent: root.presenter.translucent
    }

    LiquidBackground {
        anchors.fill: parent
        visible: root.presenter.backgroundMoves
        running: root.presenter.onScreen
        time: root.presenter.wallClock
        cornerRadius: root.presenter.cornerRadius
        unit: root.unit
        translucent: root.presenter.translucent
    }

    Item {
        id: inside

        readonly property real pointsAcross: root.presenter.panelWidth - root.presenter.paddingLeading
                                             - root.presenter.paddingTrailing

        anchors.fill: parent
        anchors.topMargin: root.presenter.paddingTop * root.unit
        anchors.leftMargin: root.presenter.paddingLeading * root.unit
        anchors.bottomMargin: root.presenter.paddingBottom * root.unit
        anchors.rightMargin: root.presenter.paddingTrailing * root.unit

        Column {
            anchors.centerIn: parent
            spacing: 2 * root.unit

            TabularText {
                objectName: "label"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.presenter.showsLabel
                text: root.presenter.label
                font: root.presenter.labelFont
                color: root.presenter.secondaryText
                maximumWidth: inside.pointsAcross
                shade: root.presenter.textShade
                unit: root.unit
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 6 * root.unit

                TabularText {
                    objectName: "digits"
                    text: root.presenter.digits
                    font: root.presenter.digitFont
                    color: root.presenter.primaryText
                    equalDigits: root.presenter.digitsHaveEqualWidth
                    maximumWidth: inside.pointsAcross - (dot.visible ? 12 : 0)
                    shade: root.presenter.textShade
                    unit: root.unit
                }

                Symbol {
                    id: dot

                    objectName: "dot"
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.presenter.showsStatusDot
                    name: "circle.fill"
                    color: root.presenter.dotColor
                    side: Math.max(2, 6 * root.unit)
                }
            }

            TabularText {
                objectName: "session"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.presenter.showsDailyTotal
                text: root.presenter.sessionLine
                font: root.presenter.sessionFont
                color: root.presenter.secondaryText
                equalDigits: root.presenter.sessionDigitsHaveEqualWidth
                wordGap: 6
                maximumWidth: inside.pointsAcross
                shade: root.presenter.textShade
                unit: root.unit
            }

            SymbolRow {
                objectName: "stars"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.presenter.showsDailyTotal
                names: root.presenter.stars
                colors: root.presenter.starColors
                side: 6 * root.unit
                spacing: 3 * root.unit
            }
        }
    }
}
