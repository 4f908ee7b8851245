import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! An application with its icon and its time in one line. */
RowLayout {
    id: root

    required property appRow app
    property bool dotted: false

    spacing: Style.metrics.spacing
    Accessible.role: Accessible.ListItem
    Accessible.name: root.app.accessibleText

    AppIconView {
        Layout.preferredWidth: 18
        Layout.preferredHeight: 18
        iconName: root.app.iconName
        symbolName: root.app.symbolName
        color: Style.palette.mute
        side: 18
    }
    Rectangle {
        Layout.preferredWidth: 6
        Layout.preferredHeight: 6
        visible: root.dotted
        radius: 3
        color: root.app.color
    }
    NameText {
        Layout.fillWidth: true
        text: root.app.name
        font: Style.sans(13, Style.Regular)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
    PlainText {
        text: root.app.time
        font: Style.mono(12, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
}
