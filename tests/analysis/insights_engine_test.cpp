#include "analysis/insights_engine.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/fake/fake_time_zone.h"
#include "tests/support/classification_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

constexpr auto editor = "com.apple.dt.Xcode";   // productive
constexpr auto player = "com.netflix.Netflix";  // distracting
constexpr auto music = "com.spotify.client";    // neutral

class InsightsEngineTest : public testing::Test {
protected:
    void day(const char* key, int seconds) { fixture_.days.set(Seconds(seconds), DayKey(key)); }
    void hour(const char* key, int seconds, const char* app = music) {
        for (int i = 0; i < seconds; ++i) fixture_.hours.incrementApp(AppId(app), HourKey(key));
    }
    void bucket(const char* key, int seconds, const char* app = music) {
        for (int i = 0; i < seconds; ++i) fixture_.minutes.incrementApp(AppId(app), BucketKey(key));
    }
    [[nodiscard]] static Instant utc(year_month_day date, minutes time) { return sys_days(date) + time; }

    test::FakeWorld world_;  // Thursday, 2026-01-15, 09:00
    test::ClassificationFixture fixture_{world_};
    const InsightsEngine engine_{world_.clock, fixture_.days, fixture_.hours, fixture_.minutes,
                                 fixture_.categories};
};

TEST_F(InsightsEngineTest, TheRangesHaveTheirNamesAndLengths) {
    std::vector<std::string> rows;
    for (const auto range : allInsightsRanges()) {
        rows.push_back(std::string(rawValue(range)) + " " + std::string(label(range)) + " " +
                       (days(range) ? std::to_string(*days(range)) : "-"));
    }
    EXPECT_THAT(rows, testing::ElementsAre("week Semana 7", "month Mes 30", "all Todo -"));
}

TEST_F(InsightsEngineTest, AnEmptyRecordGivesTheEmptyValues) {
    for (const auto range : allInsightsRanges()) {
        Insights empty;
        empty.range = range;
        EXPECT_EQ(engine_.compute(range), empty);
    }
}

TEST_F(InsightsEngineTest, FiftyNineSecondsAddToTheTotalAndAreTheBestDayButNoActiveOne) {
    day("2026-01-14", 59);
    day("2026-01-15", 58);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.totalSeconds, Seconds(117));
    EXPECT_EQ(insights.activeDays, 0);
    EXPECT_EQ(insights.bestDayKey, DayKey("2026-01-14"));
    EXPECT_EQ(insights.bestDaySeconds, Seconds(59));
}

TEST_F(InsightsEngineTest, WithoutAnActiveDayTheAverageIsZero) {
    day("2026-01-15", 59);
    EXPECT_EQ(engine_.compute(InsightsRange::week).avgPerActiveDay, Seconds());
}

TEST_F(InsightsEngineTest, TheAverageIsOfAllSecondsOverTheActiveDays) {
    day("2026-01-13", 60);
    day("2026-01-14", 59);
    day("2026-01-15", 62);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.activeDays, 2);
    EXPECT_EQ(insights.avgPerActiveDay, Seconds(90)) << "181 / 2, cut off";
}

TEST_F(InsightsEngineTest, AWeekOnAWednesdayBeginsOnTheThursdayBefore) {
    world_.clock.setNow(utc(2026y / 1 / 14, 12h));
    day("2026-01-07", 1000);
    day("2026-01-08", 100);
    day("2026-01-14", 10);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.totalSeconds, Seconds(110));
    EXPECT_EQ(insights.rangeDays, 7);
}

TEST_F(InsightsEngineTest, AMonthIsTodayAndTheTwentyNineDaysBeforeIt) {
    day("2025-12-16", 1000);
    day("2025-12-17", 100);
    EXPECT_EQ(engine_.compute(InsightsRange::month).totalSeconds, Seconds(100));
    EXPECT_EQ(engine_.compute(InsightsRange::all).totalSeconds, Seconds(1100));
}

TEST_F(InsightsEngineTest, DaysAfterNowBelongToTheRange) {
    day("2026-02-01", 100);
    hour("2026-02-01 09", 60);
    bucket("2026-02-01 09:00", 300);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.totalSeconds, Seconds(100));
    EXPECT_EQ(insights.peakHour, 9);
    EXPECT_TRUE(insights.longest.has_value());
}

TEST_F(InsightsEngineTest, TheFirstDayOnRecordIsTheSameForAllRanges) {
    day("2019-05-01", 1);
    day("2026-01-15", 100);
    for (const auto range : allInsightsRanges()) {
        EXPECT_EQ(engine_.compute(range).firstDayKey, DayKey("2019-05-01"));
    }
}

TEST_F(InsightsEngineTest, OfEqualDaysTheEarliestIsTheBestAndZeroSecondsMakeNone) {
    day("2026-01-13", 0);
    EXPECT_EQ(engine_.compute(InsightsRange::week).bestDayKey, std::nullopt);
    day("2026-01-15", 100);
    day("2026-01-14", 100);
    EXPECT_EQ(engine_.compute(InsightsRange::week).bestDayKey, DayKey("2026-01-14"));
}

TEST_F(InsightsEngineTest, TheRangesDaysAreThoseOfTheCalendarFromTheFirstToTheLastEntry) {
    day("2024-02-28", 0);
    day("2024-03-01", 0);
    EXPECT_EQ(engine_.compute(InsightsRange::all).rangeDays, 3);
    EXPECT_EQ(engine_.compute(InsightsRange::week).rangeDays, 0);
    day("zzz", 0);
    EXPECT_EQ(engine_.compute(InsightsRange::all).rangeDays, 0) << "the greatest key is no date";
}

TEST_F(InsightsEngineTest, OfEqualHoursTheEarlierIsThePeak) {
    hour("2026-01-14 14", 90);
    hour("2026-01-15 09", 60);
    hour("2026-01-15 09", 30, editor);
    hour("2026-01-15 10", 89);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.peakHour, 9);
    EXPECT_EQ(insights.peakHourSeconds, Seconds(90));
    EXPECT_EQ(insights.hourHistogram[14], Seconds(90));
    EXPECT_EQ(insights.hourHistogram[10], Seconds(89));
}

TEST_F(InsightsEngineTest, ADayWhoseBusiestHourHasFiftyNineSecondsIsOutOfTheAveragePeak) {
    hour("2026-01-14 20", 59);
    EXPECT_EQ(engine_.compute(InsightsRange::week).avgPeakHour, std::nullopt);
    hour("2026-01-15 09", 60);
    hour("2026-01-15 08", 30);
    hour("2026-01-13 12", 70);
    EXPECT_EQ(engine_.compute(InsightsRange::week).avgPeakHour, 10.5);
}

TEST_F(InsightsEngineTest, ThreeHundredClassifiedSecondsQualifyForTheBestScore) {
    hour("2026-01-15 09", 200, editor);
    hour("2026-01-15 11", 99, player);
    hour("2026-01-15 12", 500, music);
    EXPECT_EQ(engine_.compute(InsightsRange::week).bestScoreDayKey, std::nullopt);
    hour("2026-01-15 11", 1, player);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.bestScoreDayKey, DayKey("2026-01-15"));
    EXPECT_DOUBLE_EQ(insights.bestScore, 200.0 / 300.0);
}

TEST_F(InsightsEngineTest, ADayWithoutProductiveSecondsIsNeverTheBestScore) {
    hour("2026-01-15 09", 300, player);
    const auto insights = engine_.compute(InsightsRange::week);
    EXPECT_EQ(insights.bestScoreDayKey, std::nullopt);
    EXPECT_EQ(insights.bestScore, 0.0);
}

TEST_F(InsightsEngineTest, HoursOutsideTheRangeAndMalformedKeysAreLeftOut) {
    hour("2026-01-08 09", 70);
    hour("2026-01-15", 80);
    hour("2026-01-15 24", 80);
    hour("2026-01-15 -1", 80);
    hour("2026-01-15 09 10", 80);
    hour("2026-01-15 nueve", 80);
    EXPECT_EQ(engine_.compute(InsightsRange::week).hourHistogram, (Insights().hourHistogram));
    hour(" 2026-01-15  9 ", 60);
    EXPECT_EQ(engine_.compute(InsightsRange::week).hourHistogram[9], Seconds(60));
}

TEST_F(InsightsEngineTest, ABucketBelowHalfEndsASession) {
    bucket("2026-01-15 09:00", 300);
    bucket("2026-01-15 09:10", 600);
    bucket("2026-01-15 09:20", 299);
    bucket("2026-01-15 09:30", 600);
    EXPECT_EQ(engine_.compute(InsightsRange::week).longest,
              (LongestSession{Seconds(900), utc(2026y / 1 / 15, 9h), utc(2026y / 1 / 15, 9h + 20min)}));
}

TEST_F(InsightsEngineTest, ABucketThatIsAloneIsASessionToo) {
    bucket("2026-01-15 09:30", 301);
    EXPECT_EQ(engine_.compute(InsightsRange::week).longest,
              (LongestSession{Seconds(301), utc(2026y / 1 / 15, 9h + 30min),
                              utc(2026y / 1 / 15, 9h + 30min) + 301s}));
}

TEST_F(InsightsEngineTest, ThreeFullBucketsLastFromTheFirstsStartToTheLastsEnd) {
    bucket("2026-01-15 09:50", 200);
    bucket("2026-01-15 09:50", 400, editor);
    bucket("2026-01-15 10:00", 600);
    bucket("2026-01-15 10:10", 600);
    EXPECT_EQ(
        engine_.compute(InsightsRange::week).longest,
        (LongestSession{Seconds(1800), utc(2026y / 1 / 15, 9h + 50min), utc(2026y / 1 / 15, 10h + 20min)}));
}

TEST_F(InsightsEngineTest, ASessionsSecondsAreThoseBookedAndItsEndNeverBeyondItsLastBucket) {
    bucket("2026-01-15 09:00", 300);
    bucket("2026-01-15 09:10", 300);
    EXPECT_EQ(engine_.compute(InsightsRange::week).longest,
              (LongestSession{Seconds(600), utc(2026y / 1 / 15, 9h), utc(2026y / 1 / 15, 9h + 15min)}));
    bucket("2026-01-15 09:10", 500, editor);
    EXPECT_EQ(engine_.compute(InsightsRange::week).longest,
              (LongestSession{Seconds(1100), utc(2026y / 1 / 15, 9h), utc(2026y / 1 / 15, 9h + 20min)}));
}

TEST_F(InsightsEngineTest, ASessionMayCrossMidnight) {
    bucket("2026-01-13 23:50", 600);
    bucket("2026-01-14 00:00", 500);
    EXPECT_EQ(
        engine_.compute(InsightsRange::week).longest,
        (LongestSession{Seconds(1100), utc(2026y / 1 / 13, 23h + 50min), utc(2026y / 1 / 14, 0h) + 500s}));
}

TEST_F(InsightsEngineTest, OfEqualSessionsTheEarlierIsTheLongest) {
    bucket("2026-01-14 09:00", 400);
    bucket("2026-01-15 09:00", 400);
    EXPECT_EQ(engine_.compute(InsightsRange::week).longest->start, utc(2026y / 1 / 14, 9h));
}

TEST_F(InsightsEngineTest, ABucketKeyWithoutABlankIsADayAndThenNoDate) {
    bucket("2026-01-15", 600);
    bucket("2026-01-15 25:00", 600);
    bucket("2026-02-30 10:00", 600);
    bucket("2026-01-15 1:00", 600);
    bucket("2026-01-08 10:00", 600);
    EXPECT_EQ(engine_.compute(InsightsRange::week).longest, std::nullopt);
    EXPECT_EQ(engine_.compute(InsightsRange::all).longest->start, utc(2026y / 1 / 8, 10h));
}

TEST_F(InsightsEngineTest, AnHourThatTheClockSkipsDoesNotInterruptASession) {
    world_.clock.setZone(platform::madridZone());
    world_.clock.setNow(utc(2026y / 3 / 29, 12h));
    const InsightsEngine engine(world_.clock, fixture_.days, fixture_.hours, fixture_.minutes,
                                fixture_.categories);
    bucket("2026-03-29 01:50", 600);
    bucket("2026-03-29 03:00", 600);
    EXPECT_EQ(engine.compute(InsightsRange::week).longest,
              (LongestSession{Seconds(1200), utc(2026y / 3 / 29, 50min), utc(2026y / 3 / 29, 1h + 10min)}));
    EXPECT_EQ(engine.clockTime(engine.compute(InsightsRange::week).longest->end), "3:10 am");
}

TEST_F(InsightsEngineTest, TheWeekKeepsItsDaysWhenTheClockChanges) {
    world_.clock.setZone(platform::madridZone());
    world_.clock.setNow(utc(2026y / 3 / 30, 22h + 30min));  // half past midnight on the 31st
    const InsightsEngine engine(world_.clock, fixture_.days, fixture_.hours, fixture_.minutes,
                                fixture_.categories);
    day("2026-03-24", 1000);
    day("2026-03-25", 100);
    EXPECT_EQ(engine.compute(InsightsRange::week).totalSeconds, Seconds(100));
}

TEST_F(InsightsEngineTest, AnotherClassificationChangesTheBestScore) {
    hour("2026-01-15 09", 300, music);
    EXPECT_EQ(engine_.compute(InsightsRange::week).bestScoreDayKey, std::nullopt);
    fixture_.categories.setTier(Tier::productive, Category::music);
    EXPECT_EQ(engine_.compute(InsightsRange::week).bestScore, 1.0);
}

TEST_F(InsightsEngineTest, ADateIsShortAndAnInvalidKeyIsUnchanged) {
    EXPECT_EQ(engine_.shortDate(DayKey("2026-11-20")), "vie 20 nov");
    EXPECT_EQ(engine_.shortDate(DayKey("ayer")), "ayer");
    world_.clock.setZone(platform::fixedZone(-6h));
    EXPECT_EQ(engine_.shortDate(utc(2026y / 11 / 20, 5h)), "jue 19 nov");
}

TEST_F(InsightsEngineTest, AClockTimeIsThatOfTheZoneOfTheMoment) {
    EXPECT_EQ(engine_.clockTime(utc(2026y / 11 / 20, 9h + 5min)), "9:05 am");
    world_.clock.setZone(platform::fixedZone(4h));
    EXPECT_EQ(engine_.clockTime(utc(2026y / 11 / 20, 9h + 5min)), "1:05 pm");
}

TEST_F(InsightsEngineTest, AnHourBeyondTheDayWrapsAround) {
    EXPECT_EQ(InsightsEngine::hourLabel(-1), "11 pm");
    EXPECT_EQ(InsightsEngine::hourLabel(-25), "11 pm");
    EXPECT_EQ(InsightsEngine::hourLabel(24), "12 am");
    EXPECT_EQ(InsightsEngine::hourLabel(0), "12 am");
    EXPECT_EQ(InsightsEngine::hourLabel(12), "12 pm");
    EXPECT_EQ(InsightsEngine::hourLabel(13), "1 pm");
}

}  // namespace
}  // namespace tidewatch
