#include "classification/productivity_score.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/classification_fixture.h"

namespace tidewatch {
namespace {

const DayKey monday("2026-01-12");
const DayKey tuesday("2026-01-13");

ProductivityScore score(std::int64_t productive, std::int64_t neutral, std::int64_t distracting,
                        std::int64_t uncategorized = 0) {
    return {Seconds(productive), Seconds(neutral), Seconds(distracting), Seconds(uncategorized)};
}

TEST(ProductivityScoreTest, NothingShowsADash) {
    EXPECT_EQ(ProductivityScore().displayString(), "—");
    EXPECT_EQ(ProductivityScore().score(), 0.0);
}

TEST(ProductivityScoreTest, FiftyNineProductiveSecondsShowADashSixtyShow100PerCent) {
    EXPECT_EQ(score(59, 0, 0).displayString(), "—");
    EXPECT_EQ(score(60, 0, 0).displayString(), "100%");
}

TEST(ProductivityScoreTest, ThreeHoursOfOnlyNeutralWorkShowADashAndScore0) {
    const auto neutral = score(0, 3 * 3600, 0);
    EXPECT_EQ(neutral.displayString(), "—");
    EXPECT_EQ(neutral.score(), 0.0);
}

TEST(ProductivityScoreTest, TwentyNineClassifiedSecondsInAnHourShowADashThirtyShow70PerCent) {
    EXPECT_EQ(score(20, 3600, 9).displayString(), "—");
    EXPECT_EQ(score(21, 3600, 9).displayString(), "70%");
}

TEST(ProductivityScoreTest, NeutralAndUncategorizedTimePlayNoPartInTheScore) {
    EXPECT_EQ(score(30, 0, 10).score(), 0.75);
    EXPECT_EQ(score(30, 5000, 10, 7000).score(), 0.75);
}

TEST(ProductivityScoreTest, AllFourCountAsActive) {
    EXPECT_EQ(score(1, 20, 300, 4000).totalActive(), Seconds(4321));
    EXPECT_EQ(score(30, 10, 0, 20).displayString(), "100%");
    EXPECT_EQ(score(30, 10, 0, 19).displayString(), "—");
}

TEST(ProductivityScoreTest, HalvesAreRoundedAwayFromZero) {
    EXPECT_EQ(score(125, 0, 875).displayString(), "13%");
    EXPECT_EQ(score(124, 0, 876).displayString(), "12%");
    EXPECT_EQ(score(1, 0, 299).displayString(), "0%");
}

struct ProductivityScorerTest : testing::Test {
    test::FakeWorld world;
    test::ClassificationFixture fixture{world};

    void book(const char* app, const DayKey& day, int seconds) {
        for (int i = 0; i < seconds; ++i) fixture.apps.incrementApp(AppId(app), day);
    }
};

TEST_F(ProductivityScorerTest, AddsEachApplicationToItsTier) {
    book("com.apple.dt.Xcode", monday, 40);
    book("com.google.Chrome", monday, 2);
    book("com.apple.finder", monday, 7);
    book("com.brightlooms.fathom.games", monday, 5);
    book("com.example.unknown", monday, 11);
    EXPECT_EQ(fixture.scorer.compute(std::vector{monday}), score(42, 7, 5, 11));
}

TEST_F(ProductivityScorerTest, SumsOverTheDaysGiven) {
    book("com.apple.dt.Xcode", monday, 3);
    book("com.apple.dt.Xcode", tuesday, 4);
    EXPECT_EQ(fixture.scorer.compute(std::vector{monday, tuesday}), score(7, 0, 0));
    EXPECT_EQ(fixture.scorer.compute(std::vector{tuesday, tuesday}), score(8, 0, 0));
    EXPECT_EQ(fixture.scorer.compute({}), ProductivityScore());
    EXPECT_EQ(fixture.scorer.compute(std::vector{DayKey("2020-01-01")}), ProductivityScore());
}

TEST_F(ProductivityScorerTest, SecondsWithoutAnApplicationAreExcluded) {
    world.putAppInFront("com.brightlooms.tidewatch");
    fixture.engine.start();
    world.mainLoop.runFor(std::chrono::seconds(70));
    EXPECT_EQ(fixture.engine.todaySeconds(), Seconds(70));
    EXPECT_EQ(fixture.scorer.compute(std::vector{fixture.days.today()}), ProductivityScore());
}

}  // namespace
}  // namespace tidewatch
