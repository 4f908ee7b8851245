import QtQuick
import QtQuick.Layouts
import Tidewatch.System
import Tidewatch.Ui

/*! Whether the line is fast enough for something. */
RowLayout {
    id: root

    required property systemCapability row

    spacing: Style.metrics.spacing
    Accessible.role: Accessible.StaticText
    Accessible.name: row.accessibleText

    Symbol {
        name: root.row.symbol
        side: 16
        color: Style.legibleOn(Style.palette.textGround, root.row.color)
    }
    PlainText {
        Layout.fillWidth: true
        text: root.row.label
        elide: Text.ElideRight
        font: Style.sans(12, Style.Regular)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
}
