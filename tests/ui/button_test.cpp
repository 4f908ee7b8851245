#include "ui/control_test.h"

#include <QtTest/QTest>

namespace tidewatch {
namespace {

using ButtonTest = ControlTest;
using DisabledControlTest = ControlTest;

constexpr auto oneIconButton = R"(
IconButton {
    property int clicks: 0
    symbol: "chevron.left"; accessibleName: "Día anterior"
    onClicked: ++clicks
})";

TEST_F(ButtonTest, AnIconButtonTakesTheMouseTheKeysAndAssistiveTechnology) {
    show(oneIconButton);
    click(*view_);
    EXPECT_EQ(count("clicks"), 1);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    EXPECT_EQ(count("clicks"), 4);
    EXPECT_EQ(accessible(*view_).role(), QAccessible::Button);
    EXPECT_EQ(nameOf(*view_), "Día anterior");
    act(*view_, QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("clicks"), 5);
}

TEST_F(ButtonTest, ADisabledButtonIsReportedAsDisabled) {
    show(oneIconButton);
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "");
    view_->setEnabled(false);
    EXPECT_EQ(accessible(*view_).text(QAccessible::Description), "no disponible");
}

TEST_F(ButtonTest, ADisabledButtonDoesNothing) {
    show(oneIconButton);
    view_->setEnabled(false);
    click(*view_);
    press(Qt::Key_Return);
    EXPECT_EQ(count("clicks"), 0);
}

TEST_F(ButtonTest, OnlyTheKeyboardShowsTheRing) {
    show(
        "Row { spacing: 9; IconButton { objectName: 'one'; symbol: 'plus'; accessibleName: '1' }"
        " TextButton { objectName: 'two'; text: '2' } LinkButton { objectName: 'three'; text: '3' } }");
    click(the("one"));
    EXPECT_TRUE(the("one").hasActiveFocus());
    EXPECT_FALSE(showsRing(the("one")));
    press(Qt::Key_Tab);
    EXPECT_TRUE(the("two").hasActiveFocus());
    EXPECT_TRUE(showsRing(the("two")));
    press(Qt::Key_Tab);
    EXPECT_FALSE(showsRing(the("two")));
    EXPECT_TRUE(showsRing(the("three")));
}

TEST_F(ButtonTest, AWiderTextButtonKeepsItsWordsInTheMiddle) {
    show("TextButton { text: 'Exportar'; symbol: 'doc.richtext' }");
    const auto middleOfWords = [this] {
        const auto* row = qvariant_cast<QQuickItem*>(seen("contentItem"));
        const double left = placeOf(*row).left();
        return left + row->implicitWidth() / 2;
    };
    EXPECT_NEAR(middleOfWords(), view_->implicitWidth() / 2, 1);
    view_->setWidth(400);
    EXPECT_NEAR(middleOfWords(), 200, 1);
    EXPECT_EQ(nameOf(*view_), "Exportar");
}

TEST_F(DisabledControlTest, ADisabledControlIsReportedAndCannotBePressedThroughTheAccessibilityBus) {
    show(R"(Item {
        property int clicks: 0
        Column {
            IconButton { objectName: "icon"; symbol: "plus"; accessibleName: "Más"; enabled: false; onClicked: ++clicks }
            LinkButton { objectName: "link"; text: "hoy"; enabled: false; onClicked: ++clicks }
            TextButton { objectName: "words"; text: "Generar"; enabled: false; onClicked: ++clicks }
            Chip { objectName: "chip"; text: "Neutral"; enabled: false; onToggled: ++clicks }
        }
    })");
    for (const auto* name : {"icon", "link", "words", "chip"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(accessible(the(name)).text(QAccessible::Description), "no disponible");
        act(the(name), QAccessibleActionInterface::pressAction());
        the(name).setEnabled(true);
        EXPECT_EQ(accessible(the(name)).text(QAccessible::Description), "");
    }
    EXPECT_EQ(count("clicks"), 0);
    for (const auto* name : {"icon", "link", "words", "chip"})
        act(the(name), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(count("clicks"), 4);
}

}  // namespace
}  // namespace tidewatch
