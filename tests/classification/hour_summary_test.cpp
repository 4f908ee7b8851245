#include "classification/hour_summary.h"

#include <gtest/gtest.h>

#include "tests/support/classification_fixture.h"

namespace tidewatch {
namespace {

const DayKey today("2026-01-15");

HourSummary summary(std::int64_t productive, std::int64_t neutral, std::int64_t distracting) {
    return {HourKey("2026-01-15 09"),
            9,
            Seconds(productive + neutral + distracting),
            Seconds(productive),
            Seconds(neutral),
            Seconds(distracting)};
}

struct HourSummaryTest : testing::Test {
    test::FakeWorld world;
    test::ClassificationFixture fixture{world};

    void book(const char* app, const char* hour, int seconds) {
        for (int i = 0; i < seconds; ++i) fixture.hours.incrementApp(AppId(app), HourKey(hour));
    }
};

TEST_F(HourSummaryTest, AnEmptyDayGives24SummariesOfZerosThatAreSparse) {
    const auto hours = fixture.hourSummaries(today);
    ASSERT_EQ(hours.size(), 24u);
    for (int i = 0; i < 24; ++i) {
        const auto& hour = hours[static_cast<std::size_t>(i)];
        EXPECT_EQ(hour, (HourSummary{hourKey(today, i), i, {}, {}, {}, {}}));
        EXPECT_EQ(hour.score(), 0.0);
        EXPECT_TRUE(hour.isSparse());
    }
}

TEST_F(HourSummaryTest, WithDayStart5TheFirstIsHour5AndTheLastHour4) {
    fixture.settings.setDayStartHour(5);
    const auto hours = fixture.hourSummaries(today);
    ASSERT_EQ(hours.size(), 24u);
    EXPECT_EQ(hours.front().hour, 5);
    EXPECT_EQ(hours.front().id, HourKey("2026-01-15 05"));
    EXPECT_EQ(hours.back().hour, 4);
    EXPECT_EQ(hours.back().id, HourKey("2026-01-15 04"));
}

TEST_F(HourSummaryTest, TwentyNineClassifiedSecondsAreSparseThirtyAreNot) {
    EXPECT_TRUE(summary(20, 0, 9).isSparse());
    EXPECT_FALSE(summary(21, 0, 9).isSparse());
}

TEST_F(HourSummaryTest, AnHourOfOnlyNeutralApplicationsScores0AndIsSparse) {
    const auto neutral = summary(0, 3600, 0);
    EXPECT_EQ(neutral.score(), 0.0);
    EXPECT_TRUE(neutral.isSparse());
}

TEST_F(HourSummaryTest, TheScoreIsTheProductiveShareOfTheClassifiedSeconds) {
    EXPECT_EQ(summary(30, 900, 10).score(), 0.75);
}

TEST_F(HourSummaryTest, EachApplicationCountsInItsTierAndUncategorizedOnesInTheSumOnly) {
    book("com.apple.dt.Xcode", "2026-01-15 09", 10);
    book("com.google.Chrome", "2026-01-15 09", 1);
    book("com.apple.finder", "2026-01-15 09", 5);
    book("com.hnc.Discord", "2026-01-15 09", 3);
    book("com.example.unknown", "2026-01-15 09", 20);
    book("com.apple.dt.Xcode", "2026-01-14 09", 99);
    const auto hours = fixture.hourSummaries(today);
    EXPECT_EQ(hours[9],
              (HourSummary{HourKey("2026-01-15 09"), 9, Seconds(39), Seconds(11), Seconds(5), Seconds(3)}));
    EXPECT_EQ(hours[8].seconds, Seconds(0));
    EXPECT_EQ(hours[10].seconds, Seconds(0));
}

TEST_F(HourSummaryTest, AChangeOfDayStartFindsAllHoursAndOnlyReordersThem) {
    book("com.apple.dt.Xcode", "2026-01-15 02", 7);
    book("com.apple.dt.Xcode", "2026-01-15 22", 9);
    fixture.settings.setDayStartHour(5);
    const auto hours = fixture.hourSummaries(today);
    EXPECT_EQ(hours[21].id, HourKey("2026-01-15 02"));
    EXPECT_EQ(hours[21].seconds, Seconds(7));
    EXPECT_EQ(hours[17].seconds, Seconds(9));
}

TEST_F(HourSummaryTest, AChangeOfClassificationChangesPastHours) {
    book("com.apple.dt.Xcode", "2026-01-15 09", 40);
    fixture.categories.setCategory(Category::games, AppId("com.apple.dt.Xcode"));
    const auto hours = fixture.hourSummaries(today);
    EXPECT_EQ(hours[9].productive, Seconds(0));
    EXPECT_EQ(hours[9].distracting, Seconds(40));
}

}  // namespace
}  // namespace tidewatch
