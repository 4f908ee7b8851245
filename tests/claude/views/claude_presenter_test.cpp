// The values of tab and card, in all states.

#include "claude/views/claude_presenter.h"

#include <gtest/gtest.h>

#include "claude/views/claude_texts.h"
#include "platform/fake/fake_time_zone.h"
#include "shell/themes/dashboard_style.h"
#include "tests/claude/views/claude_scene.h"
#include "tests/support/presenter_probe.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using test::LogEntry;
using test::utc;

struct ClaudePresenterTest : testing::Test, ClaudeViewsWorld {
    void expectTabGolden(const char* name) {
        test::expectGolden(test::probe(tab_), QString(TIDEWATCH_GOLDEN_FOLDER "/tab-%1.json").arg(name));
    }
    void expectCardGolden(const char* name) {
        test::expectGolden(test::probe(card_), QString(TIDEWATCH_GOLDEN_FOLDER "/card-%1.json").arg(name));
    }
    static const std::vector<ClaudeBar>& rowsOf(RowListModel* list) {
        return dynamic_cast<RowList<ClaudeBar>*>(list)->rows();
    }
};

const auto green = toQColor(DashboardStyle::tierProductive);
const auto amber = toQColor(DashboardStyle::amber);
const auto red = toQColor(DashboardStyle::tierDistracting);
const auto blue = toQColor(DashboardStyle::tierNeutral);

TEST_F(ClaudePresenterTest, MonthsOfUsage) {
    useForMonths();
    show();
    expectTabGolden("month");
    expectCardGolden("month");
}

TEST_F(ClaudePresenterTest, TheOtherRangesOfMonthsOfUsage) {
    useForMonths();
    show();
    tab_.selectRange(0);
    expectTabGolden("today");
    tab_.selectRange(1);
    expectTabGolden("week");
}

TEST_F(ClaudePresenterTest, BeforeTheFirstScanHasEnded) {
    useForMonths();
    machine_.queues.hold();
    show();
    EXPECT_TRUE(tab_.isScanning());
    EXPECT_EQ(tab_.rangeIndex(), 2);
    EXPECT_FALSE(tab_.hasHistory());
    EXPECT_EQ(tab_.noHistory(), "Calculando…");
    expectTabGolden("scanning");
    expectCardGolden("scanning");
}

TEST_F(ClaudePresenterTest, WithoutLogs) {
    show();
    EXPECT_TRUE(tab_.hasNoLogs());
    expectTabGolden("no-logs");
    expectCardGolden("no-logs");
}

TEST_F(ClaudePresenterTest, WithoutLogsOfThisMonth) {
    useLastMonth();
    show();
    EXPECT_FALSE(tab_.hasNoLogs());
    EXPECT_FALSE(tab_.hasModels());
    EXPECT_NE(tab_.note(), "");
    expectTabGolden("quiet-month");
    expectCardGolden("quiet-month");
}

TEST_F(ClaudePresenterTest, AValueCardWithoutPossibleWindowsShowsNothing) {
    machine_.queues.hold();
    show();
    EXPECT_EQ(tab_.extracted(), "$0");
    EXPECT_EQ(tab_.efficiency(), "0%");
}

TEST_F(ClaudePresenterTest, TheTabRefreshesWhenItAppearsAndNotMoreThanOnceAMinute) {
    show();
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 5, 60}.line());
    tab_.setVisible(false);
    tab_.setVisible(true);
    machine_.mainLoop.run();
    EXPECT_TRUE(tab_.hasNoLogs());
    machine_.clock.advance(seconds(61));
    tab_.setVisible(false);
    tab_.setVisible(true);
    machine_.mainLoop.run();
    EXPECT_FALSE(tab_.hasNoLogs());
    EXPECT_EQ(tab_.conversations(), "1 conversaciones");
}

TEST_F(ClaudePresenterTest, TheAgeOfTheFiguresIsToldWhileTheTabIsShown) {
    machine_.putLog("a.jsonl", "");
    show();
    EXPECT_EQ(tab_.updated(), "actualizado hace 0s");
    machine_.mainLoop.runFor(seconds(59));
    EXPECT_EQ(tab_.updated(), "actualizado hace 59s");
    machine_.mainLoop.runFor(seconds(1));
    EXPECT_EQ(tab_.updated(), "actualizado hace 1min");
    machine_.mainLoop.runFor(seconds(60));
    EXPECT_EQ(tab_.updated(), "actualizado hace 2min");
    tab_.setVisible(false);
    card_.setVisible(false);
    EXPECT_EQ(machine_.mainLoop.timerCount(), 0u);
}

TEST_F(ClaudePresenterTest, OfMoreThanSixModelsTheBarsOfSixAreSharesOfAll) {
    std::string lines;
    for (int model = 0; model < 8; ++model) {
        lines +=
            LogEntry{"2026-03-11T11:00:00", 1, 1000 + model, 0, 0, "model-" + std::to_string(model)}.line();
    }
    machine_.putLog("a.jsonl", lines);
    show();
    const auto& rows = rowsOf(tab_.models());
    ASSERT_EQ(rows.size(), 6u);
    EXPECT_EQ(rows.front().label, "model-7");
    double shown = 0;
    for (const auto& row : rows) shown += row.fraction;
    EXPECT_NEAR(shown, (1007 + 1006 + 1005 + 1004 + 1003 + 1002) / 8028.0, 1e-9);
    EXPECT_LT(shown, 1);
}

TEST_F(ClaudePresenterTest, EqualModelsKeepTheirOrderAndNoOutputMakesNoBar) {
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 0, 0, 0, "b"}.line() +
                                   LogEntry{"2026-03-11T11:00:00", 1, 0, 0, 0, "a"}.line());
    show();
    const auto& rows = rowsOf(tab_.models());
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].label, "a");
    EXPECT_EQ(rows[0].fraction, 0);
    EXPECT_EQ(rows[0].value, "0 tok out");
}

TEST_F(ClaudePresenterTest, TheFamiliesOfModelsHaveThreeColours) {
    EXPECT_NE(modelColor("claude-opus-4-7"), modelColor("claude-sonnet-4-6"));
    EXPECT_NE(modelColor("claude-opus-4-7"), modelColor("claude-haiku-4-5"));
    EXPECT_NE(modelColor("claude-sonnet-4-6"), modelColor("claude-haiku-4-5"));
    EXPECT_EQ(modelColor("unknown"), modelColor("claude-haiku-4-5"));
    EXPECT_EQ(modelColor("OPUS"), modelColor("unknown"));
}

TEST_F(ClaudePresenterTest, TheLastSixMonthsAreShownTheNewestAtTheBottom) {
    std::vector<ClaudeMonthRecord> stored;
    for (int month = 1; month <= 9; ++month)
        stored.push_back({"2025-0" + std::to_string(month), 80, 100, 0, 7, 1, 20});
    machine_.files.put(machine_.historyJson, serializeMonthHistory(stored).value());
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 1}.line());
    show();
    const auto& rows = rowsOf(tab_.months());
    ASSERT_EQ(rows.size(), 6u);
    EXPECT_EQ(rows.front().label, "May 2025");
    EXPECT_EQ(rows.front().mark, "");
    EXPECT_EQ(rows.front().value, "$16 / $20 (80%)");
    EXPECT_EQ(rows.front().details, "80 sesiones · 7 convs");
    EXPECT_EQ(rows.front().color, green);
    EXPECT_EQ(rows.back().label, "Mar 2026");
    EXPECT_EQ(rows.back().mark, "· actual");
    EXPECT_EQ(rows.back().color, red);
}

TEST_F(ClaudePresenterTest, TheRunningMonthFollowsTheLocalClock) {
    machine_.clock.setNow(utc("2026-04-01T02:00:00"));
    machine_.clock.setZone(platform::fixedZone(-hours(6)));
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 1}.line());
    show();
    EXPECT_EQ(rowsOf(tab_.months()).back().label, "Mar 2026");
    EXPECT_EQ(rowsOf(tab_.months()).back().mark, "· actual");
}

TEST_F(ClaudePresenterTest, AKeyThatIsNoMonthIsShownAsItIs) {
    EXPECT_EQ(monthLabel("2026-03"), "Mar 2026");
    EXPECT_EQ(monthLabel("2026-13"), "2026-13");
    EXPECT_EQ(monthLabel("2026-3"), "2026-3");
    EXPECT_EQ(monthLabel("abc"), "abc");
    EXPECT_EQ(monthLabel(""), "");
}

TEST_F(ClaudePresenterTest, EfficiencyIsGreenFromSeventyAndAmberFromFortyPercent) {
    EXPECT_EQ(efficiencyColor(0.7), green);
    EXPECT_EQ(efficiencyColor(0.6999), amber);
    EXPECT_EQ(efficiencyColor(0.4), amber);
    EXPECT_EQ(efficiencyColor(0.3999), red);
}

TEST_F(ClaudePresenterTest, ALimitIsRedFromNinetyAndAmberFromSeventyPercent) {
    EXPECT_EQ(limitColor(0.9), red);
    EXPECT_EQ(limitColor(0.8999), amber);
    EXPECT_EQ(limitColor(0.7), amber);
    EXPECT_EQ(limitColor(0.6999), blue);
}

TEST_F(ClaudePresenterTest, EditingBeginsWithThePresentPriceAndSavingStoresIt) {
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 1}.line());
    show();
    tab_.editBudget();
    EXPECT_TRUE(tab_.editingBudget());
    EXPECT_EQ(tab_.budgetText(), "100");
    tab_.setBudgetText("20.5");
    tab_.saveBudget();
    EXPECT_FALSE(tab_.editingBudget());
    EXPECT_EQ(usage_.settings.subscriptionUsd(), 20.5);
    EXPECT_EQ(tab_.subscription(), "$20");
    EXPECT_FALSE(usage_.monitor.isScanning());
}

TEST_F(ClaudePresenterTest, WhatIsNoPriceEndsEditingAndChangesNothing) {
    usage_.settings.setSubscriptionUsd(80);
    show();
    for (const auto* wrong : {"", "0", "-5", " 20", "20 ", "20x", "1,5", "x"}) {
        tab_.editBudget();
        tab_.setBudgetText(wrong);
        tab_.saveBudget();
        EXPECT_FALSE(tab_.editingBudget()) << wrong;
        EXPECT_EQ(usage_.settings.subscriptionUsd(), 80) << wrong;
    }
}

TEST_F(ClaudePresenterTest, CancellingChangesNothing) {
    show();
    tab_.editBudget();
    tab_.setBudgetText("20");
    tab_.cancelBudget();
    EXPECT_FALSE(tab_.editingBudget());
    EXPECT_EQ(usage_.settings.subscriptionUsd(), 100);
}

TEST_F(ClaudePresenterTest, ABudgetFillsTheFieldWhenTheTabAppears) {
    show();
    EXPECT_EQ(tab_.budgetText(), "");
    tab_.setVisible(false);
    usage_.settings.setMonthlyBudgetUsd(249.6);
    tab_.setVisible(true);
    EXPECT_EQ(tab_.budgetText(), "250");
}

TEST_F(ClaudePresenterTest, AnUnknownRangeHasNoEffect) {
    show();
    tab_.selectRange(-1);
    tab_.selectRange(3);
    EXPECT_EQ(tab_.rangeIndex(), 2);
}

TEST_F(ClaudePresenterTest, ASessionOlderThanFiveHoursIsFullRedAndHasNothingLeft) {
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T08:00:00", 1, 1}.line());
    show();
    EXPECT_EQ(card_.session().reset, "80% · reinicia en 1h 0m");
    EXPECT_EQ(card_.session().color, amber);
    EXPECT_EQ(card_.session().remark, "termina 1:00 pm");
    machine_.mainLoop.runFor(hours(2));
    EXPECT_EQ(card_.session().reset, "100% · reinicia en 0m 0s");
    EXPECT_EQ(card_.session().color, red);
}

TEST_F(ClaudePresenterTest, TheSessionMovesWithTheClock) {
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 1}.line());
    show();
    EXPECT_EQ(card_.session().reset, "20% · reinicia en 4h 0m");
    machine_.mainLoop.runFor(minutes(60));
    EXPECT_EQ(card_.session().reset, "40% · reinicia en 3h 0m");
    machine_.clock.setNow(utc("2026-03-11T10:00:00"));
    machine_.mainLoop.runFor(seconds(1));
    EXPECT_TRUE(card_.session().reset.startsWith("0% · ")) << qPrintable(card_.session().reset);
}

TEST_F(ClaudePresenterTest, WithoutASessionTheCardOffersANewOne) {
    machine_.putLog("a.jsonl", "");
    show();
    EXPECT_EQ(card_.session().fraction, 0);
    EXPECT_EQ(card_.session().reset, "0% · nueva sesión disponible");
    EXPECT_EQ(card_.session().remark, "ventana fresca · sin actividad reciente");
}

TEST_F(ClaudePresenterTest, TheWeekIsMeasuredAgainstItsLimit) {
    machine_.putLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 7875000}.line());
    show();
    EXPECT_EQ(card_.week().value, "7.9M / 8.8M (90%)");
    EXPECT_EQ(card_.week().color, red);
    machine_.appendToLog("a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 90000000}.line());
    usage_.monitor.forceRefresh();
    machine_.mainLoop.run();
    EXPECT_EQ(card_.week().value, "97.9M / 8.8M (100%)");
    EXPECT_EQ(card_.week().fraction, 1);
}

TEST_F(ClaudePresenterTest, RemainingTimeHasHoursOrSeconds) {
    EXPECT_EQ(remainingTime(seconds(3600)), "1h 0m");
    EXPECT_EQ(remainingTime(milliseconds(3599999)), "59m 59s");
    EXPECT_EQ(remainingTime(milliseconds(999)), "0m 0s");
    EXPECT_EQ(remainingTime(seconds(-5)), "0m 0s");
}

TEST_F(ClaudePresenterTest, OnSundayOfUtcTheWeekEndsInTwentyFourHours) {
    EXPECT_EQ(nextMondayLabel(utc("2026-03-15T00:00:00")), "reinicia en 24h");
    EXPECT_EQ(nextMondayLabel(utc("2026-03-15T23:59:59")), "reinicia en 24h");
    EXPECT_EQ(nextMondayLabel(utc("2026-03-16T00:00:00")), "reinicia en 7d");
    EXPECT_EQ(nextMondayLabel(utc("2026-03-14T12:00:00")), "reinicia en 2d");
    EXPECT_EQ(nextMondayLabel(utc("2026-03-11T12:00:00")), "reinicia en 5d");
}

TEST_F(ClaudePresenterTest, TheEndOfASessionIsTheLocalTime) {
    EXPECT_EQ(endTimeLabel(utc("2026-03-11T00:05:00"), *platform::fixedZone(hours(0))), "12:05 am");
    EXPECT_EQ(endTimeLabel(utc("2026-03-11T12:05:00"), *platform::fixedZone(hours(0))), "12:05 pm");
    EXPECT_EQ(endTimeLabel(utc("2026-03-11T12:05:00"), *platform::fixedZone(hours(1))), "1:05 pm");
}

TEST_F(ClaudePresenterTest, AModelNameOfAnyLengthIsOneLine) {
    machine_.putLog(
        "a.jsonl",
        LogEntry{"2026-03-11T11:00:00", 1, 1, 0, 0, std::string(5000, 'x') + "\\n<b>y</b>"}.line());
    show();
    EXPECT_LT(rowsOf(tab_.models()).front().label.size(), 250);
}

}  // namespace
}  // namespace tidewatch
