import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! The progress of a goal: name, figures and a bar. */
ColumnLayout {
    id: root

    required property goalRow goal

    spacing: 8

    RowLayout {
        Layout.fillWidth: true
        spacing: Style.metrics.spacing

        PlainText {
            Layout.fillWidth: true
            text: root.goal.label
            elide: Text.ElideRight
            font: Style.sans(14, Style.Regular)
            color: Style.palette.primaryText
            Accessible.ignored: true
        }
        PlainText {
            text: root.goal.figures
            font: Style.mono(13, Style.Regular)
            color: Style.palette.secondaryText
            Accessible.ignored: true
        }
        PlainText {
            Layout.preferredWidth: 16
            horizontalAlignment: Text.AlignRight
            text: root.goal.mark
            // The monospaced family's check mark looks like a square root.
            font: Style.sans(14, Style.Semibold)
            color: Style.legibleOn(Style.palette.textGround, Style.palette.tierProductive)
            Accessible.ignored: true
        }
    }
    Meter {
        Layout.fillWidth: true
        fraction: root.goal.fraction
        color: root.goal.color
        track: Style.palette.stroke
        accessibleName: root.goal.accessibleText
    }
}
