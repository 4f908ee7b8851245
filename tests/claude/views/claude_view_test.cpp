#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QtTest/QTest>

#include "tests/claude/views/claude_scene.h"

namespace tidewatch {
namespace {

struct ClaudeViewTest : testing::Test, ClaudeScene {
    ClaudeViewTest() { QAccessible::setActive(true); }
    ~ClaudeViewTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    [[nodiscard]] QQuickItem& the(const char* name) const { return *item(name); }
    [[nodiscard]] bool isShown(const char* name) const { return item(name)->isVisible(); }

    // Of all that assistive technology finds in the window.
    [[nodiscard]] QStringList accessibleNames() {
        QStringList names;
        QList<QAccessibleInterface*> open{QAccessible::queryAccessibleInterface(&window_)};
        while (!open.isEmpty()) {
            auto* found = open.takeFirst();
            if (!found) continue;
            names.append(found->text(QAccessible::Name));
            for (int child = 0; child < found->childCount(); ++child) open.append(found->child(child));
        }
        return names;
    }

    // All visible texts.
    [[nodiscard]] QList<QQuickItem*> texts() const {
        QList<QQuickItem*> found;
        QList<QQuickItem*> open{view_.get()};
        while (!open.isEmpty()) {
            auto* next = open.takeFirst();
            if (!next->isVisible()) continue;
            if (next->inherits("QQuickText") && !next->property("text").toString().isEmpty())
                found.append(next);
            open.append(next->childItems());
        }
        return found;
    }
};

TEST_F(ClaudeViewTest, TabAndCardLoadInEveryThemeAndState) {
    for (const bool isUsed : {false, true}) {
        if (isUsed) {
            useForMonths();
            machine_.clock.advance(std::chrono::minutes(2));
            tab_.setVisible(false);
        }
        ClaudeViewsWorld::show();
        for (const auto& theme : themes_.themes()) {
            SCOPED_TRACE(theme.id);
            theme_.switchTo(theme.id);
            showTab();
            EXPECT_EQ(picture().size(), QSize(1100, 1000));
            EXPECT_EQ(isShown("empty"), !isUsed);
            showCard();
            EXPECT_EQ(picture().size(), QSize(220, 330));
        }
    }
}

TEST_F(ClaudeViewTest, NothingIsCutOffAtTheSmallestSize) {
    useForMonths();
    ClaudeViewsWorld::show();
    for (const bool isCard : {false, true}) {
        isCard ? showCard() : showTab({820, 560});
        static_cast<void>(picture());
        for (const auto* shown : texts()) {
            const auto words = shown->property("text").toString();
            EXPECT_FALSE(shown->property("truncated").toBool()) << qPrintable(words);
            const auto place = placeOf(*shown);
            EXPECT_GE(place.left(), 0) << qPrintable(words);
            EXPECT_LE(place.right(), isCard ? 212 : 820) << qPrintable(words);
            EXPECT_LE(shown->property("contentWidth").toDouble(), shown->width() + 1) << qPrintable(words);
        }
    }
}

TEST_F(ClaudeViewTest, AssistiveTechnologyReadsTheFigures) {
    useForMonths();
    ClaudeViewsWorld::show();
    showTab();
    const auto names = accessibleNames();
    for (const auto& name : {"Claude Code", "💎 VALOR EXTRAÍDO DEL PLAN", "Eficiencia del mes", "Período"}) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
    EXPECT_TRUE(names.contains(tab_.extracted()));
    EXPECT_TRUE(names.contains(tab_.usedWindows() + " " + tab_.possibleWindows()));
    EXPECT_FALSE(names.filter("Output: ").isEmpty());
    EXPECT_FALSE(names.filter("Mar 2026 · actual: $").isEmpty());
    EXPECT_FALSE(names.filter("Opus: ").isEmpty());
    showCard();
    const auto cardNames = accessibleNames();
    EXPECT_TRUE(cardNames.contains("CLAUDE · MAX"));
    EXPECT_FALSE(cardNames.filter("Límite 5 h: ").isEmpty());
    EXPECT_FALSE(cardNames.filter("Semana: ").isEmpty());
    EXPECT_FALSE(cardNames.filter("Hoy: ").isEmpty());
}

TEST_F(ClaudeViewTest, ThePriceIsEditedByKeyboard) {
    useForMonths();
    ClaudeViewsWorld::show();
    showTab();
    EXPECT_FALSE(isShown("budget"));
    the("editBudget").forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_TRUE(isShown("budget"));
    EXPECT_TRUE(the("budget").hasActiveFocus());
    EXPECT_EQ(the("budget").property("text"), "100");
    press(Qt::Key_4);
    press(Qt::Key_0);
    press(Qt::Key_Return);
    EXPECT_FALSE(isShown("budget"));
    EXPECT_TRUE(the("editBudget").hasActiveFocus());
    EXPECT_EQ(usage_.settings.subscriptionUsd(), 40);
    EXPECT_EQ(the("subscription").property("text"), "$40");
    press(Qt::Key_Space);
    press(Qt::Key_7);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isShown("budget"));
    EXPECT_EQ(usage_.settings.subscriptionUsd(), 40);
}

TEST_F(ClaudeViewTest, ThePriceIsSavedByItsButton) {
    useForMonths();
    ClaudeViewsWorld::show();
    showTab();
    click(the("editBudget"));
    press(Qt::Key_7);
    press(Qt::Key_5);
    click(the("saveBudget"));
    EXPECT_EQ(usage_.settings.subscriptionUsd(), 75);
    EXPECT_TRUE(isShown("editBudget"));
}

TEST_F(ClaudeViewTest, AClickChoosesTheRange) {
    useForMonths();
    ClaudeViewsWorld::show();
    showTab();
    const auto month = the("total").property("text").toString();
    click(the("ranges"), {20, 16});
    EXPECT_EQ(tab_.rangeIndex(), 0);
    EXPECT_NE(the("total").property("text").toString(), month);
    press(Qt::Key_Right);
    EXPECT_EQ(tab_.rangeIndex(), 1);
}

TEST_F(ClaudeViewTest, ALongScanSaysThatItRuns) {
    machine_.putLog("a.jsonl", "");
    machine_.queues.hold();
    ClaudeViewsWorld::show();
    showTab();
    EXPECT_FALSE(isShown("scanning"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return isShown("scanning"); }, 60'000));
    machine_.queues.release();
    usage_.monitor.forceRefresh();
    machine_.mainLoop.run();
    EXPECT_FALSE(isShown("scanning"));
    EXPECT_FALSE(tab_.isScanning());
}

}  // namespace
}  // namespace tidewatch
