import QtQuick
import QtQuick.Layouts
import Tidewatch.Analysis
import Tidewatch.Ui

/*! A goal with its value and buttons to decrease and increase it. */
RowLayout {
    id: root

    required property goalStepper stepper

    signal increase
    signal decrease

    spacing: 16

    PlainText {
        Layout.fillWidth: true
        text: root.stepper.title
        elide: Text.ElideRight
        font: Style.sans(14, Style.Regular)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
    PlainText {
        objectName: "value"
        Layout.preferredWidth: 54
        horizontalAlignment: Text.AlignRight
        text: root.stepper.value
        font: Style.mono(14, Style.Medium)
        color: Style.palette.primaryText
        Accessible.ignored: true
    }
    StepperButtons {
        objectName: root.stepper.id
        accessibleName: root.stepper.title
        valueText: root.stepper.value
        value: root.stepper.number
        minimumValue: root.stepper.min
        maximumValue: root.stepper.max
        stepSize: root.stepper.step
        canDecrease: root.stepper.canDecrease
        canIncrease: root.stepper.canIncrease
        onDecrease: root.decrease()
        onIncrease: root.increase()
    }
}
