#include "ui/control_test.h"

#include <QtTest/QTest>

namespace tidewatch {
namespace {

using ChipTest = ControlTest;
using PickerTest = ControlTest;
using StepperTest = ControlTest;
using SwitchTest = ControlTest;

TEST_F(ChipTest, AChipTogglesByMouseAndKeys) {
    show("Chip { property int toggles: 0; text: 'Neutral'; checked: true; onToggled: ++toggles }");
    EXPECT_EQ(accessible(*view_).role(), QAccessible::CheckBox);
    EXPECT_TRUE(accessible(*view_).state().checked);
    click(*view_);
    EXPECT_FALSE(seen("checked").toBool());
    EXPECT_FALSE(accessible(*view_).state().checked);
    press(Qt::Key_Space);
    EXPECT_TRUE(seen("checked").toBool());
    press(Qt::Key_Return);
    EXPECT_FALSE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 3);
}

TEST_F(ChipTest, AChipTogglesForAssistiveTechnology) {
    show("Chip { property int toggles: 0; text: 'Neutral'; onToggled: ++toggles }");
    act(*view_, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 1);
}

constexpr auto ranges = R"(
Column {
    property int chosen: 1
    property int asked: -1
    property alias segments: picker
    SegmentedPicker {
        id: picker
        objectName: "picker"
        labels: ["Semana", "Mes", "Todo"]
        currentIndex: parent.chosen
        accessibleName: "Rango"
        onActivated: index => { parent.asked = index; parent.chosen = index; }
    }
    TextButton { objectName: "after"; text: "Después" }
})";

TEST_F(PickerTest, ThePickerIsOneTabStopAndArrowsChoose) {
    show(ranges);
    press(Qt::Key_Tab);
    EXPECT_EQ(window_.activeFocusItem()->property("text").toString(), "Mes");
    press(Qt::Key_Right);
    EXPECT_EQ(count("chosen"), 2);
    EXPECT_EQ(window_.activeFocusItem()->property("text").toString(), "Todo");
    EXPECT_TRUE(showsRing(*window_.activeFocusItem()));
    press(Qt::Key_Right);
    EXPECT_EQ(count("chosen"), 2) << "there is no further one";
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(count("chosen"), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(count("chosen"), 1);
    press(Qt::Key_Tab);
    EXPECT_TRUE(the("after").hasActiveFocus());
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window_.activeFocusItem()->property("text").toString(), "Mes");
}

TEST_F(PickerTest, ThePickerTakesClicksAndAsksOnlyForWhatIsNotChosen) {
    show(ranges);
    auto& picker = the("picker");
    click(picker, {picker.width() / 2, picker.height() / 2});
    EXPECT_EQ(count("asked"), -1);
    click(picker, {20, picker.height() / 2});
    EXPECT_EQ(count("asked"), 0);
}

TEST_F(PickerTest, ThePickerIsAGroupOfRadioButtons) {
    show(ranges);
    auto& group = accessible(the("picker"));
    EXPECT_EQ(group.text(QAccessible::Name), "Rango");
    ASSERT_EQ(group.childCount(), 3);
    EXPECT_EQ(group.child(1)->role(), QAccessible::RadioButton);
    EXPECT_EQ(group.child(1)->text(QAccessible::Name), "Mes");
    EXPECT_TRUE(group.child(1)->state().checked);
    EXPECT_FALSE(group.child(2)->state().checked);
    group.child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("chosen"), 2);
}

constexpr auto stepper = R"(
StepperButtons {
    accessibleName: "Horas por día"; valueText: value + "h"; maximumValue: 3
    canDecrease: value > 0; canIncrease: value < 3
    onDecrease: --value
    onIncrease: ++value
})";

TEST_F(StepperTest, TheStepperTakesArrowsAndSigns) {
    show(stepper);
    press(Qt::Key_Tab);
    EXPECT_TRUE(view_->hasActiveFocus());
    EXPECT_TRUE(showsRing(*view_));
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    press(Qt::Key_Plus);
    press(Qt::Key_Plus);
    EXPECT_EQ(count("value"), 3) << "not beyond what it can";
    press(Qt::Key_Down);
    press(Qt::Key_Left);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus);
    EXPECT_EQ(count("value"), 0);
}

TEST_F(StepperTest, TheStepperTakesClicksOnItsTwoButtons) {
    show(stepper);
    click(the("increase"));
    click(the("increase"));
    click(the("decrease"));
    EXPECT_EQ(count("value"), 1);
    click(the("decrease"));
    EXPECT_FALSE(the("decrease").isEnabled());
    click(the("decrease"));
    EXPECT_EQ(count("value"), 0);
}

TEST_F(StepperTest, TheStepperReportsItsValueAndStepsForAssistiveTechnology) {
    show(stepper);
    EXPECT_EQ(accessible(*view_).role(), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(*view_), "Horas por día");
    act(*view_, QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "1h");
    act(*view_, QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "0h");
    ASSERT_NE(accessible(*view_).valueInterface(), nullptr);
    EXPECT_EQ(accessible(*view_).valueInterface()->currentValue().toDouble(), 0);
    EXPECT_EQ(accessible(*view_).valueInterface()->maximumValue().toDouble(), 3);
}

constexpr auto oneSwitch = R"(
LabeledSwitch {
    property int toggles: 0
    width: 300
    text: "Notificaciones de metas"
    onToggled: checked => { ++toggles; this.checked = checked; }
})";

TEST_F(SwitchTest, TheSwitchTogglesByMouseAnywhereAndByKeys) {
    show(oneSwitch);
    click(*view_, {5, 15});
    EXPECT_TRUE(seen("checked").toBool());
    press(Qt::Key_Space);
    EXPECT_FALSE(seen("checked").toBool());
    press(Qt::Key_Return);
    EXPECT_TRUE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 3);
}

TEST_F(SwitchTest, TheSwitchShowsWhatItsOwnerSaysOnly) {
    show("LabeledSwitch { text: 'Fijo'; checked: false }");
    click(*view_);
    EXPECT_FALSE(seen("checked").toBool());
    auto& control = accessible(*window_.activeFocusItem());
    EXPECT_EQ(control.role(), QAccessible::CheckBox);
    EXPECT_EQ(control.text(QAccessible::Name), "Fijo");
    EXPECT_FALSE(control.state().checked);
}

TEST_F(SwitchTest, TheSwitchTogglesForAssistiveTechnology) {
    show(oneSwitch);
    press(Qt::Key_Tab);
    act(*window_.activeFocusItem(), QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(seen("checked").toBool());
    EXPECT_EQ(count("toggles"), 1);
    EXPECT_TRUE(accessible(*window_.activeFocusItem()).state().checked);
}

}  // namespace
}  // namespace tidewatch
