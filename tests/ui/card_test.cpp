#include "ui/control_test.h"

namespace tidewatch {
namespace {

using CardTest = ControlTest;
using MeterTest = ControlTest;

TEST_F(CardTest, ACardIsAsLargeAsItsChildAndItsPadding) {
    show("Card { Rectangle { implicitWidth: 100; implicitHeight: 50 } }");
    EXPECT_EQ(view_->implicitWidth(), 140);
    EXPECT_EQ(view_->implicitHeight(), 90);
}

TEST_F(CardTest, AChildCanFillItsCard) {
    show("Card { width: 200; height: 100; Item { objectName: 'child'; anchors.fill: parent } }");
    EXPECT_EQ(placeOf(the("child")), QRectF(20, 20, 160, 60));
}

TEST_F(CardTest, ACardIsAccessibleOnlyWithATextAndInItsRole) {
    show("Item { Accessible.role: Accessible.Pane; Card { Heading { text: 'Metas' } } }");
    EXPECT_EQ(accessible(*view_).child(0)->role(), QAccessible::Heading);
    show(R"(Item {
        Accessible.role: Accessible.Pane
        Card { accessibleText: "9:00am, 19m"; accessibleRole: Accessible.ListItem; Heading { text: "Metas" } }
    })");
    ASSERT_EQ(accessible(*view_).childCount(), 1);
    auto* card = accessible(*view_).child(0);
    EXPECT_EQ(card->role(), QAccessible::ListItem);
    EXPECT_EQ(card->text(QAccessible::Name), "9:00am, 19m");
    EXPECT_EQ(card->child(0)->role(), QAccessible::Heading);
}

TEST_F(CardTest, HiddenAndEmptyTextsAreNotAccessible) {
    show(R"(Column {
        Accessible.role: Accessible.Pane
        AccessibleText { text: "uno" }
        AccessibleText { text: "dos"; visible: false }
        AccessibleText {}
    })");
    ASSERT_EQ(accessible(*view_).childCount(), 1);
    EXPECT_EQ(accessible(*view_).child(0)->role(), QAccessible::StaticText);
    EXPECT_EQ(accessible(*view_).child(0)->text(QAccessible::Name), "uno");
}

TEST_F(CardTest, AHeadingIsAHeadingInItsOwnWords) {
    show("Heading { text: 'Fijar metas' }");
    EXPECT_EQ(accessible(*view_).role(), QAccessible::Heading);
    EXPECT_EQ(nameOf(*view_), "Fijar metas");
}

TEST_F(MeterTest, AMeterIsFilledWithinItsEnds) {
    show("Meter { width: 200 }");
    const auto fillAt = [this](double fraction) {
        view_->setProperty("fraction", fraction);
        return the("fill").isVisible() ? the("fill").width() : 0;
    };
    EXPECT_EQ(fillAt(0), 0);
    EXPECT_EQ(fillAt(-1), 0);
    EXPECT_EQ(fillAt(0.001), 6) << "the least that can be seen";
    EXPECT_EQ(fillAt(0.5), 100);
    EXPECT_EQ(fillAt(1), 200);
    EXPECT_EQ(fillAt(7), 200);
}

TEST_F(MeterTest, AMeterWithANameReportsItsValue) {
    show("Meter { fraction: 0.25; accessibleName: 'Horas por día'; valueText: '2.0h / 8.0h' }");
    auto& meter = accessible(*view_);
    EXPECT_EQ(meter.role(), QAccessible::ProgressBar);
    EXPECT_EQ(nameOf(*view_), "Horas por día");
    EXPECT_EQ(meter.text(QAccessible::Description), "2.0h / 8.0h");
}

}  // namespace
}  // namespace tidewatch
