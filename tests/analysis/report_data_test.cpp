#include "analysis/report_data.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "analysis/analysis_fixture.h"
#include "classification/app_info_resolver.h"
#include "platform/fake/fake_time_zone.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ReportDataTest : public testing::Test {
protected:
    [[nodiscard]] ReportData build() const {
        return buildReportData({world_.clock, fixture_.days, fixture_.apps, appInfo_, fixture_.scorer,
                                fixture_.goals.evaluator, fixture_.goals.rewards});
    }

    test::FakeWorld world_;  // Thursday, 2026-01-15, 09:00
    test::AnalysisFixture fixture_{world_};
    const AppInfoResolver appInfo_{world_.applications};
};

TEST_F(ReportDataTest, TheFirstOfAMonthWithoutTimeIsAnEmptyReport) {
    world_.clock.setNow(sys_days(2026y / 11 / 1) + 8h);
    fixture_.setTime(2026y / 10 / 31, 5000);
    fixture_.addClassified(2026y / 10 / 31, 100, 0);
    const auto data = build();
    EXPECT_EQ(data.totalSeconds, Seconds());
    EXPECT_EQ(data.activeDays, 0);
    EXPECT_EQ(data.avgDailySeconds, Seconds());
    EXPECT_EQ(data.recordSeconds, Seconds());
    EXPECT_EQ(data.recordDay, "—");
    EXPECT_EQ(data.scorePct, 0.0);
    EXPECT_THAT(data.topApps, IsEmpty());
    EXPECT_THAT(data.goals, SizeIs(4));
    EXPECT_EQ(data.starsMonth, 0);
}

TEST_F(ReportDataTest, AnEmptyRecordHasTheFourRowsOfGoals) {
    const auto data = build();
    EXPECT_EQ(data.goals, fixture_.goals.evaluator.evaluate());
    EXPECT_EQ(data.goals[0].label, "Hoy");
    EXPECT_EQ(data.goals[3].label, "Mes");
    EXPECT_EQ(data.streak, 0);
}

TEST_F(ReportDataTest, ADayWithOneSecondIsAnActiveDay) {
    fixture_.setTime(2026y / 1 / 1, 1);
    fixture_.setTime(2026y / 1 / 2, 0);
    fixture_.setTime(2026y / 1 / 15, 100);
    const auto data = build();
    EXPECT_EQ(data.activeDays, 2);
    EXPECT_EQ(data.totalSeconds, Seconds(101));
    EXPECT_EQ(data.avgDailySeconds, Seconds(50));
}

TEST_F(ReportDataTest, TheMonthGoesThroughToday) {
    fixture_.setTime(2025y / 12 / 31, 1000);
    fixture_.setTime(2026y / 1 / 1, 10);
    fixture_.setTime(2026y / 1 / 15, 20);
    fixture_.setTime(2026y / 1 / 16, 2000);
    EXPECT_EQ(build().totalSeconds, Seconds(30));
}

TEST_F(ReportDataTest, OfEqualDaysTheEarliestIsTheRecord) {
    fixture_.setTime(2026y / 1 / 3, 50);
    fixture_.setTime(2026y / 1 / 7, 100);
    fixture_.setTime(2026y / 1 / 9, 100);
    const auto data = build();
    EXPECT_EQ(data.recordDay, "2026-01-07");
    EXPECT_EQ(data.recordSeconds, Seconds(100));
}

TEST_F(ReportDataTest, TheScoreIsThatOfTheWholeMonthAndNoMeanOfDays) {
    fixture_.addClassified(2026y / 1 / 5, 100, 0);
    fixture_.addClassified(2026y / 1 / 6, 0, 300);
    EXPECT_EQ(build().scorePct, 0.25);
}

TEST_F(ReportDataTest, ShowsTheEightApplicationsWithMostTimeUnderTheirNames) {
    world_.applications.registerApplication(AppId("app9"), {"La novena", "", {}});
    for (int i = 1; i <= 9; ++i) {
        for (int n = 0; n < i; ++n) {
            fixture_.apps.incrementApp(AppId(fmt::format("app{}", i)), DayKey("2026-01-05"));
            fixture_.apps.incrementApp(AppId(fmt::format("app{}", i)), DayKey("2026-01-15"));
        }
    }
    const auto data = build();
    ASSERT_THAT(data.topApps, SizeIs(8));
    EXPECT_EQ(data.topApps.front(), (ReportApp{"La novena", Seconds(18)}));
    EXPECT_EQ(data.topApps.back(), (ReportApp{"app2", Seconds(4)}));
}

TEST_F(ReportDataTest, FewerThanEightApplicationsAreAShorterList) {
    fixture_.addClassified(2026y / 1 / 15, 5, 3);
    EXPECT_THAT(build().topApps, ElementsAre(ReportApp{"com.apple.dt.Xcode", Seconds(5)},
                                             ReportApp{"com.netflix.Netflix", Seconds(3)}));
}

TEST_F(ReportDataTest, StarsAndStreakAreThoseOfTheRewards) {
    fixture_.setTime(2026y / 1 / 13, 6 * 3600);
    fixture_.setTime(2026y / 1 / 14, 6 * 3600);
    const auto data = build();
    EXPECT_EQ(data.starsMonth, 6);
    EXPECT_EQ(data.streak, 2);
}

TEST_F(ReportDataTest, TitleAndTimeAreInTheZoneOfTheMoment) {
    world_.clock.setZone(platform::fixedZone(-6h));
    world_.clock.setNow(sys_days(2026y / 12 / 1) + 5h + 5min);
    fixture_.setTime(2026y / 11 / 30, 100);
    const auto data = build();
    EXPECT_EQ(data.periodTitle, "MES · Noviembre 2026");
    EXPECT_EQ(data.generated, "30 nov 2026 · 23:05");
    EXPECT_EQ(data.totalSeconds, Seconds(100));
}

}  // namespace
}  // namespace tidewatch
