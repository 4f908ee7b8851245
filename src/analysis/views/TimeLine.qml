import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! A name and its time. */
RowLayout {
    id: root

    required property namedTime time

    spacing: Style.metrics.spacing
    Accessible.role: Accessible.StaticText
    Accessible.name: root.time.name + ", " + root.time.time

    Rectangle {
        Layout.preferredWidth: 6
        Layout.preferredHeight: 6
        radius: 3
        color: root.time.color
    }
    PlainText {
        Layout.fillWidth: true
        text: root.time.name
        elide: Text.ElideRight
        font: Style.sans(13, Style.Regular)
        color: Style.palette.secondaryText
        Accessible.ignored: true
    }
    PlainText {
        text: root.time.time
        font: Style.mono(12, Style.Regular)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
}
