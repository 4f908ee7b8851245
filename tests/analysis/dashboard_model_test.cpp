#include "analysis/dashboard_model.h"

#include <gmock/gmock.h>

#include <vector>

#include "analysis/dashboard_model_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Field = DashboardModel::Field;

TEST(DashboardTab, IsFoundByItsLabel) {
    for (const auto tab : {DashboardTab::overview, DashboardTab::disk, DashboardTab::claude}) {
        EXPECT_EQ(dashboardTab(rawValue(tab)), tab);
    }
    EXPECT_EQ(dashboardTab("Otro"), std::nullopt);
    EXPECT_EQ(dashboardTab(""), std::nullopt);
}

TEST_F(DashboardModelTest, IsEmptyUntilItIsReloadedAndListsEveryTier) {
    book(editor, "2026-01-15", 60);
    EXPECT_EQ(model_.tab(), DashboardTab::overview);
    EXPECT_EQ(model_.selectedDate(), world_.clock.now());
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-15"));
    EXPECT_THAT(model_.allDayApps(), IsEmpty());
    EXPECT_THAT(model_.hourSummaries(), IsEmpty());
    EXPECT_THAT(model_.hourGroups(), IsEmpty());
    EXPECT_THAT(model_.projectRows(), IsEmpty());
    EXPECT_EQ(model_.score(), ProductivityScore());
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    EXPECT_THAT(model_.tierFilter(),
                ElementsAre(Tier::productive, Tier::neutral, Tier::distracting, Tier::uncategorized));
    EXPECT_EQ(model_.searchText(), "");
}

TEST_F(DashboardModelTest, TheTabsHaveTheirNames) {
    EXPECT_EQ(rawValue(DashboardTab::overview), "Overview");
    EXPECT_EQ(rawValue(DashboardTab::goals), "Metas");
    EXPECT_EQ(rawValue(DashboardTab::details), "Detalle");
    EXPECT_EQ(rawValue(DashboardTab::timesheet), "Timesheet");
    EXPECT_EQ(rawValue(DashboardTab::projects), "Proyectos");
    EXPECT_EQ(rawValue(DashboardTab::system), "Sistema");
    EXPECT_EQ(rawValue(DashboardTab::disk), "Disco");
    EXPECT_EQ(rawValue(DashboardTab::claude), "Claude");
}

TEST_F(DashboardModelTest, AReloadReadsTheDayWithItsNamesAndClasses) {
    registerApplication(editor, "Editor");
    book(player, "2026-01-15", 30);
    book(editor, "2026-01-15", 60);
    book(music, "2026-01-14", 500);
    fixture_.hours.incrementApp(AppId(editor), HourKey("2026-01-15 08"));
    fixture_.minutes.incrementApp(AppId(editor), BucketKey("2026-01-15 08:30"));
    model_.reload();
    EXPECT_THAT(model_.allDayApps(), ElementsAre(AppEntry{AppId(editor), Seconds(60), "Editor",
                                                          AppIcon{AppIcon::Source::desktop, "icon-of-it", ""},
                                                          Category::development, Tier::productive},
                                                 AppEntry{AppId(player), Seconds(30), player, std::nullopt,
                                                          Category::entertainment, Tier::distracting}));
    ASSERT_THAT(model_.hourSummaries(), SizeIs(24));
    EXPECT_EQ(model_.hourSummaries()[8].productive, Seconds(1));
    ASSERT_THAT(model_.hourGroups(), SizeIs(1));
    EXPECT_EQ(model_.hourGroups()[0].hour, 8);
    EXPECT_EQ(model_.score(), (ProductivityScore{Seconds(60), {}, Seconds(30), {}}));
    EXPECT_EQ(model_.totalActiveToday(), Seconds(90));
    EXPECT_EQ(model_.prevScore(), (ProductivityScore{{}, Seconds(500), {}, {}}));
}

TEST_F(DashboardModelTest, AReloadAssignsOneFieldAfterTheOther) {
    std::vector<Field> order;
    std::vector<std::size_t> appsSeen;
    const auto connection = model_.changed.connect([&](Field field) {
        order.push_back(field);
        appsSeen.push_back(model_.allDayApps().size());
        if (field == Field::score) {
            EXPECT_EQ(model_.totalActiveToday(), Seconds()) << "not yet";
        }
    });
    book(editor, "2026-01-15", 60);
    model_.reload();
    EXPECT_THAT(order,
                ElementsAre(Field::allDayApps, Field::hourSummaries, Field::hourGroups, Field::projectRows,
                            Field::score, Field::totalActiveToday, Field::prevScore, Field::avg7Score));
    EXPECT_EQ(appsSeen.front(), 1U) << "announced after the change";
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
}

TEST_F(DashboardModelTest, EveryAssignmentIsAnnouncedWhetherItDiffersOrNot) {
    std::vector<Field> order;
    const auto connection = model_.changed.connect([&](Field field) { order.push_back(field); });
    model_.setTab(DashboardTab::overview);
    model_.setSearchText("");
    model_.toggleTier(Tier::neutral);
    EXPECT_THAT(order, ElementsAre(Field::tab, Field::searchText, Field::tierFilter));
}

TEST_F(DashboardModelTest, ADayWithoutDataEndsEmptyWithTheMeanOfTheDaysBeforeIt) {
    book(editor, "2026-01-14", 60);
    fixture_.days.set(Seconds(60), DayKey("2026-01-14"));
    model_.reload();
    EXPECT_THAT(model_.allDayApps(), IsEmpty());
    EXPECT_THAT(model_.hourGroups(), IsEmpty());
    EXPECT_THAT(model_.projectRows(), IsEmpty());
    EXPECT_EQ(model_.score(), ProductivityScore());
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    EXPECT_EQ(model_.avg7Score(), 1.0);
}

TEST_F(DashboardModelTest, TheMeanIsZeroWithoutASignificantDay) {
    EXPECT_EQ(meanAfterReload(), 0.0);
    book(editor, "2026-01-14", 59);
    book(editor, "2026-01-13", 29);
    book(music, "2026-01-13", 3000);
    EXPECT_EQ(meanAfterReload(), 0.0) << "59 active seconds, and 29 classified ones";
}

TEST_F(DashboardModelTest, SixtyActiveSecondsWithThirtyClassifiedOnesCountInTheMean) {
    book(editor, "2026-01-14", 30);
    book(music, "2026-01-14", 30);
    EXPECT_EQ(meanAfterReload(), 1.0);
}

TEST_F(DashboardModelTest, TheMeanIsThatOfTheSevenDaysBeforeAndNotOfTheSelectedOne) {
    book(player, "2026-01-15", 100);
    book(player, "2026-01-07", 100);
    book(editor, "2026-01-14", 60);
    book(player, "2026-01-14", 20);
    book(editor, "2026-01-08", 60);
    book(player, "2026-01-08", 60);
    EXPECT_DOUBLE_EQ(meanAfterReload(), (0.75 + 0.5) / 2);
    model_.previousDay();
    EXPECT_DOUBLE_EQ(model_.avg7Score(), (0.5 + 0.0) / 2);
    EXPECT_EQ(model_.prevScore(), ProductivityScore());
}

TEST_F(DashboardModelTest, AnApplicationThatTheDesktopDoesNotKnowKeepsItsIdentifierAsName) {
    book(unknown, "2026-01-15", 60);
    model_.reload();
    ASSERT_THAT(model_.allDayApps(), SizeIs(1));
    EXPECT_EQ(model_.allDayApps()[0].name, unknown);
    EXPECT_EQ(model_.allDayApps()[0].icon, std::nullopt);
    registerApplication(unknown, "Heard of");
    model_.reload();
    EXPECT_EQ(model_.allDayApps()[0].name, unknown);
}

TEST_F(DashboardModelTest, AnotherClassificationCountsForPastDaysAtTheNextReload) {
    book(music, "2026-01-14", 60);
    model_.previousDay();
    EXPECT_EQ(model_.score().neutralSeconds, Seconds(60));
    fixture_.categories.setTier(Tier::productive, Category::music);
    model_.reload();
    EXPECT_EQ(model_.score().productiveSeconds, Seconds(60));
    EXPECT_EQ(model_.allDayApps()[0].tier, Tier::productive);
}

TEST_F(DashboardModelTest, WritesNothing) {
    book(editor, "2026-01-15", 60);
    fixture_.projects.addProject("Casa");
    const auto written = world_.files.writeCount();
    model_.reload();
    model_.previousDay();
    model_.today();
    EXPECT_EQ(world_.files.writeCount(), written);
}

}  // namespace
}  // namespace tidewatch
