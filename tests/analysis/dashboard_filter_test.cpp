// Search text and tier filter.

#include <gmock/gmock.h>

#include "analysis/dashboard_model_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(DashboardModelTest, TheSearchFindsByNameIdentifierAndCategoryInAnyLetterCase) {
    registerApplication(editor, "Mi Editor");
    registerApplication(music, "Sonido");
    book(editor, "2026-01-15", 3);
    book(music, "2026-01-15", 2);
    book(player, "2026-01-15", 1);
    model_.reload();
    EXPECT_THAT(found("  eDITOr\t"), ElementsAre("Mi Editor"));
    EXPECT_THAT(found("COM.APPLE"), ElementsAre("Mi Editor"));
    EXPECT_THAT(found("mÚSICA"), ElementsAre("Sonido"));
    EXPECT_THAT(found("entreten"), ElementsAre(player));
    EXPECT_THAT(found(" \t"), SizeIs(3)) << "nothing to look for";
    EXPECT_THAT(found("ausente"), IsEmpty());
}

TEST_F(DashboardModelTest, TheSearchKeepsBlanksWithinTheTextAndLineEnds) {
    registerApplication(editor, "Mi Editor");
    book(editor, "2026-01-15", 3);
    model_.reload();
    EXPECT_THAT(found(" i ed "), ElementsAre("Mi Editor"));
    EXPECT_THAT(found("mi  editor"), IsEmpty());
    EXPECT_THAT(found("editor\n"), IsEmpty());
}

TEST_F(DashboardModelTest, AnEmptyFilterListsNothingWhateverIsSearched) {
    book(editor, "2026-01-15", 3);
    model_.reload();
    for (const auto tier : allTiers()) model_.toggleTier(tier);
    EXPECT_THAT(model_.tierFilter(), IsEmpty());
    EXPECT_THAT(found(""), IsEmpty());
    EXPECT_THAT(found("xcode"), IsEmpty());
}

TEST_F(DashboardModelTest, TheFilterListsItsTiersInTheOrderOfTheDay) {
    book(editor, "2026-01-15", 3);
    book(music, "2026-01-15", 2);
    book(player, "2026-01-15", 1);
    model_.reload();
    model_.toggleTier(Tier::neutral);
    EXPECT_THAT(namesOf(model_.filteredApps()), ElementsAre(editor, player));
    model_.toggleTier(Tier::neutral);
    EXPECT_THAT(namesOf(model_.filteredApps()), ElementsAre(editor, music, player));
}

TEST_F(DashboardModelTest, TheApplicationsOfATierIgnoreFilterAndSearch) {
    book(editor, "2026-01-15", 3);
    book("com.apple.Terminal", "2026-01-15", 2);
    book(music, "2026-01-15", 1);
    model_.reload();
    model_.toggleTier(Tier::productive);
    model_.setSearchText("ausente");
    EXPECT_THAT(namesOf(model_.apps(Tier::productive)), ElementsAre(editor, "com.apple.Terminal"));
    EXPECT_EQ(model_.seconds(Tier::productive), Seconds(5));
    EXPECT_EQ(model_.seconds(Tier::neutral), Seconds(1));
    EXPECT_EQ(model_.seconds(Tier::distracting), Seconds());
}

}  // namespace
}  // namespace tidewatch
