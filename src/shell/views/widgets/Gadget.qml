import QtQuick
import Tidewatch.Shell
import Tidewatch.Ui

/*! What the gadgets have in common: header, padding and colours. Their lengths are in points of the layout. */
Item {
    id: root

    required property GadgetPresenter gadget

    /*! Pixels per point. */
    readonly property real unit: width / gadget.panelWidth
    readonly property color ink: Style.palette.primaryText
    readonly property color quiet: Style.legibleOn(Style.palette.widgetTextGround, Style.palette.secondaryText)
    readonly property color ground: Style.palette.widgetTextGround

    default property alias content: body.data

    Item {
        id: inside

        anchors.fill: parent
        anchors.margins: 16 * root.unit

        GadgetHeader {
            id: header

            width: parent.width
            symbol: root.gadget.symbol
            title: root.gadget.heading
            color: root.quiet
            unit: root.unit
        }
        Item {
            id: body

            anchors.top: header.bottom
            anchors.topMargin: 8 * root.unit
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }
}
