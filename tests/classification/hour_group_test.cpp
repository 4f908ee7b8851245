#include "classification/hour_group.h"

#include <gmock/gmock.h>

#include <string>

#include "tests/support/classification_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const DayKey today("2026-01-15");

BucketSummary bucket(std::int64_t productive, std::int64_t neutral, std::int64_t distracting,
                     std::int64_t uncategorized = 0) {
    return {BucketKey("2026-01-15 09:00"),
            9,
            0,
            Seconds(productive + neutral + distracting + uncategorized),
            Seconds(productive),
            Seconds(neutral),
            Seconds(distracting)};
}

TEST(BucketSummaryTest, InATieProductiveWinsAndThenDistracting) {
    EXPECT_EQ(bucket(300, 0, 300).dominantTier(), Tier::productive);
    EXPECT_EQ(bucket(300, 300, 0).dominantTier(), Tier::productive);
    EXPECT_EQ(bucket(200, 200, 200).dominantTier(), Tier::productive);
    EXPECT_EQ(bucket(0, 100, 100).dominantTier(), Tier::distracting);
    EXPECT_EQ(bucket(50, 100, 100).dominantTier(), Tier::distracting);
}

TEST(BucketSummaryTest, OtherwiseTheLargestTierDominates) {
    EXPECT_EQ(bucket(3, 2, 1).dominantTier(), Tier::productive);
    EXPECT_EQ(bucket(1, 3, 2).dominantTier(), Tier::neutral);
    EXPECT_EQ(bucket(1, 2, 3).dominantTier(), Tier::distracting);
    EXPECT_EQ(bucket(1, 0, 0, 500).dominantTier(), Tier::productive);
}

TEST(BucketSummaryTest, AnOnlyUncategorizedBucketIsUncategorizedAndStillFilled) {
    const auto unknown = bucket(0, 0, 0, 150);
    EXPECT_EQ(unknown.dominantTier(), Tier::uncategorized);
    EXPECT_EQ(unknown.fillRatio(), 0.25);
}

TEST(BucketSummaryTest, TheFillRatioHasNoUpperLimit) {
    EXPECT_EQ(bucket(0, 0, 0).fillRatio(), 0.0);
    EXPECT_EQ(bucket(600, 0, 0).fillRatio(), 1.0);
    EXPECT_EQ(bucket(600, 300, 0).fillRatio(), 1.5);
}

struct HourGroupTest : testing::Test {
    test::FakeWorld world;
    test::ClassificationFixture fixture{world};

    void book(const char* app, const char* key, int seconds) {
        for (int i = 0; i < seconds; ++i) fixture.minutes.incrementApp(AppId(app), BucketKey(key));
    }
    [[nodiscard]] std::vector<int> hoursOf(const std::vector<HourGroup>& groups) const {
        std::vector<int> hours;
        for (const auto& group : groups) hours.push_back(group.hour);
        return hours;
    }
};

TEST_F(HourGroupTest, ADayWithoutSecondsGivesNoGroups) {
    EXPECT_THAT(fixture.groups(today), IsEmpty());
    world.files.put(world.minutesJson, R"({"2026-01-15 09:00":{"xterm":0}})");
    const test::ClassificationFixture zero(world);
    EXPECT_THAT(zero.groups(today), IsEmpty());
}

TEST_F(HourGroupTest, AnHourWithActivityHasAllSixBucketsByMinute) {
    book("com.apple.dt.Xcode", "2026-01-15 09:20", 30);
    const auto groups = fixture.groups(today);
    ASSERT_THAT(groups, SizeIs(1));
    EXPECT_EQ(groups[0].id(), "2026-01-15-9");
    EXPECT_TRUE(groups[0].hasActivity());
    ASSERT_THAT(groups[0].buckets, SizeIs(6));
    for (int i = 0; i < 6; ++i) {
        const auto& one = groups[0].buckets[static_cast<std::size_t>(i)];
        EXPECT_EQ(one.minute, 10 * i);
        EXPECT_EQ(one.hour, 9);
        EXPECT_EQ(one.id, bucketKey(today, {9, 10 * i}));
        EXPECT_EQ(one.seconds, Seconds(i == 2 ? 30 : 0));
    }
}

TEST_F(HourGroupTest, OnlyHoursWithActivityAppearInTheOrderOfTheDay) {
    book("xterm", "2026-01-15 03:00", 1);
    book("xterm", "2026-01-15 09:00", 1);
    book("xterm", "2026-01-15 22:50", 1);
    book("xterm", "2026-01-16 12:00", 1);
    EXPECT_THAT(hoursOf(fixture.groups(today)), ElementsAre(3, 9, 22));
    fixture.settings.setDayStartHour(5);
    EXPECT_THAT(hoursOf(fixture.groups(today)), ElementsAre(9, 22, 3));
}

TEST_F(HourGroupTest, TheTiersOfBucketsAndHourAreSummed) {
    book("com.apple.dt.Xcode", "2026-01-15 09:00", 10);
    book("com.apple.finder", "2026-01-15 09:00", 5);
    book("com.hnc.Discord", "2026-01-15 09:50", 3);
    book("com.example.unknown", "2026-01-15 09:50", 20);
    const auto group = fixture.groups(today).at(0);
    EXPECT_EQ(group.totalSeconds, Seconds(38));
    EXPECT_EQ(group.productive, Seconds(10));
    EXPECT_EQ(group.neutral, Seconds(5));
    EXPECT_EQ(group.distracting, Seconds(3));
    EXPECT_EQ(group.buckets[0].seconds, Seconds(15));
    EXPECT_EQ(group.buckets[0].productive, Seconds(10));
    EXPECT_EQ(group.buckets[0].neutral, Seconds(5));
    EXPECT_EQ(group.buckets[5].seconds, Seconds(23));
    EXPECT_EQ(group.buckets[5].distracting, Seconds(3));
}

TEST_F(HourGroupTest, WithSevenApplicationsInAnHourTopActivitiesHoldsSix) {
    for (int i = 1; i <= 7; ++i) {
        book(("app" + std::to_string(i)).c_str(), "2026-01-15 09:00", i);
    }
    const auto group = fixture.groups(today).at(0);
    ASSERT_THAT(group.topActivities, SizeIs(6));
    EXPECT_EQ(group.topActivities.front().app, AppId("app7"));
    EXPECT_EQ(group.topActivities.back().app, AppId("app2"));
    EXPECT_EQ(group.totalSeconds, Seconds(28));
}

TEST_F(HourGroupTest, AnActivityIsSummedOverTheHourAndHasNameIconAndTier) {
    const AppId editor("org.example.Editor");
    world.applications.registerApplication(editor, {"Editor", "editor-icon", {"Development", "IDE"}});
    book("org.example.Editor", "2026-01-15 09:00", 4);
    book("org.example.Editor", "2026-01-15 09:50", 5);
    const auto group = fixture.groups(today).at(0);
    EXPECT_THAT(
        group.topActivities,
        ElementsAre(TopActivity{editor, "Editor", AppIcon{AppIcon::Source::desktop, "editor-icon", ""},
                                Seconds(9), Tier::productive}));
}

TEST_F(HourGroupTest, TopCategoriesSumTheirApplicationsAndHoldFive) {
    book("com.apple.dt.Xcode", "2026-01-15 09:00", 5);
    book("com.apple.Terminal", "2026-01-15 09:10", 6);
    book("com.google.Chrome", "2026-01-15 09:00", 10);
    book("com.apple.finder", "2026-01-15 09:00", 4);
    book("com.spotify.client", "2026-01-15 09:00", 3);
    book("com.example.unknown", "2026-01-15 09:00", 2);
    book("com.hnc.Discord", "2026-01-15 09:00", 1);
    const auto group = fixture.groups(today).at(0);
    EXPECT_THAT(group.topCategories,
                ElementsAre(TopCategory{Category::development, Seconds(11), Tier::productive},
                            TopCategory{Category::browser, Seconds(10), Tier::productive},
                            TopCategory{Category::system, Seconds(4), Tier::neutral},
                            TopCategory{Category::music, Seconds(3), Tier::neutral},
                            TopCategory{Category::uncategorized, Seconds(2), Tier::uncategorized}));
}

TEST_F(HourGroupTest, EqualOnesStandInTheOrderOfIdentifiersAndOfCategories) {
    book("b", "2026-01-15 09:00", 2);
    book("a", "2026-01-15 09:10", 2);
    book("com.google.Chrome", "2026-01-15 09:00", 4);
    const auto group = fixture.groups(today).at(0);
    EXPECT_EQ(group.topActivities[1].app, AppId("a"));
    EXPECT_EQ(group.topActivities[2].app, AppId("b"));
    EXPECT_EQ(group.topCategories[0].category, Category::browser);
    EXPECT_EQ(group.topCategories[1].category, Category::uncategorized);
}

TEST_F(HourGroupTest, TheTierOfACategoryFollowsTheUsersChoice) {
    book("com.google.Chrome", "2026-01-15 09:00", 4);
    fixture.categories.setTier(Tier::distracting, Category::browser);
    const auto group = fixture.groups(today).at(0);
    EXPECT_EQ(group.distracting, Seconds(4));
    EXPECT_EQ(group.topActivities[0].tier, Tier::distracting);
    EXPECT_EQ(group.topCategories[0].tier, Tier::distracting);
}

}  // namespace
}  // namespace tidewatch
