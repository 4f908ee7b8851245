#include "analysis/dashboard_model.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

#include "analysis/dashboard_fixture.h"
#include "platform/fake/fake_time_zone.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Field = DashboardModel::Field;

constexpr auto editor = "com.apple.dt.Xcode";       // development, productive
constexpr auto player = "com.netflix.Netflix";      // entertainment, distracting
constexpr auto music = "com.spotify.client";        // music, neutral
constexpr auto unknown = "org.example.Unheard-of";  // uncategorized

class DashboardModelTest : public testing::Test {
protected:
    void book(const char* app, const char* day, int seconds) {
        for (int i = 0; i < seconds; ++i) fixture_.apps.incrementApp(AppId(app), DayKey(day));
    }
    void bookProject(const Project& project, const char* app, const char* day, int seconds) {
        world_.putAppInFront(app);
        for (int i = 0; i < seconds; ++i) fixture_.projectTime.incrementCurrentApp(DayKey(day), project.id);
    }
    void registerApplication(const char* app, const char* name) {
        world_.applications.registerApplication(AppId(app), {name, "icon-of-it", {}});
    }

    [[nodiscard]] std::vector<std::string> rowsOfProjects() const {
        std::vector<std::string> rows;
        for (const auto& row : model_.projectRows()) {
            rows.push_back(
                fmt::format("{} {}", row.project ? row.project->name : row.id, row.seconds.count()));
        }
        return rows;
    }
    [[nodiscard]] static std::vector<std::string> namesOf(const std::vector<AppEntry>& apps) {
        std::vector<std::string> names;
        for (const auto& app : apps) names.push_back(app.name);
        return names;
    }
    [[nodiscard]] std::vector<std::string> found(std::string_view search) {
        model_.setSearchText(search);
        return namesOf(model_.filteredApps());
    }
    [[nodiscard]] double meanAfterReload() {
        model_.reload();
        return model_.avg7Score();
    }

    test::FakeWorld world_;  // Thursday, 2026-01-15, 09:00
    test::DashboardFixture fixture_{world_};
    DashboardModel model_{fixture_.sources()};
};

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
    fixture_.daily.set(Seconds(60), DayKey("2026-01-14"));
    model_.reload();
    EXPECT_THAT(model_.allDayApps(), IsEmpty());
    EXPECT_THAT(model_.hourGroups(), IsEmpty());
    EXPECT_THAT(model_.projectRows(), IsEmpty());
    EXPECT_EQ(model_.score(), ProductivityScore());
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    EXPECT_EQ(model_.avg7Score(), 1.0);
}

TEST_F(DashboardModelTest, ADayWithoutProjectTimeIsOneUntaggedRow) {
    fixture_.projects.addProject("Casa");
    fixture_.daily.set(Seconds(100), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(model_.projectRows(),
                ElementsAre(ProjectRow{"__untagged__", std::nullopt, Seconds(100), {}}));
}

TEST_F(DashboardModelTest, ProjectTimeBeyondTheDaysTotalLeavesNoUntaggedRow) {
    const auto casa = fixture_.projects.addProject("Casa");
    bookProject(casa, editor, "2026-01-15", 10);
    fixture_.daily.set(Seconds(9), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("Casa 10"));
    fixture_.daily.set(Seconds(10), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("Casa 10"));
}

TEST_F(DashboardModelTest, OneSecondGivesAProjectARowAndNoneGivesItNone) {
    fixture_.projects.addProject("Nada");
    const auto casa = fixture_.projects.addProject("Casa");
    bookProject(casa, editor, "2026-01-15", 1);
    bookProject(casa, editor, "2026-01-14", 5);
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("Casa 1"));
    EXPECT_EQ(model_.projectRows()[0].id, casa.id.text());
    EXPECT_EQ(model_.projectRows()[0].project, casa);
}

TEST_F(DashboardModelTest, TheTimeOfAnArchivedProjectLandsInTheRest) {
    const auto casa = fixture_.projects.addProject("Casa");
    const auto old = fixture_.projects.addProject("Viejo");
    bookProject(casa, editor, "2026-01-15", 10);
    bookProject(old, editor, "2026-01-15", 50);
    fixture_.daily.set(Seconds(70), DayKey("2026-01-15"));
    fixture_.projects.setArchived(ProjectStore::Archived::yes, old.id);
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("__untagged__ 60", "Casa 10"));
}

TEST_F(DashboardModelTest, AProjectShowsTheFirstSixOfItsApplications) {
    const auto casa = fixture_.projects.addProject("Casa");
    for (int i = 1; i <= 8; ++i) {
        bookProject(casa, fmt::format("app{}", i).c_str(), "2026-01-15", i);
    }
    model_.reload();
    ASSERT_THAT(model_.projectRows(), SizeIs(1));
    const auto& row = model_.projectRows()[0];
    EXPECT_THAT(namesOf(row.topApps), ElementsAre("app8", "app7", "app6", "app5", "app4", "app3"));
    EXPECT_EQ(row.seconds, Seconds(36)) << "of all eight";
    EXPECT_EQ(row.topApps[0].seconds, Seconds(8));
}

TEST_F(DashboardModelTest, EqualRowsKeepTheOrderOfTheProjectsAndTheRestComesAfterThem) {
    const auto a = fixture_.projects.addProject("A");
    const auto b = fixture_.projects.addProject("B");
    const auto c = fixture_.projects.addProject("C");
    bookProject(c, editor, "2026-01-15", 20);
    bookProject(b, editor, "2026-01-15", 10);
    bookProject(a, editor, "2026-01-15", 10);
    fixture_.daily.set(Seconds(50), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("C 20", "A 10", "B 10", "__untagged__ 10"));
}

TEST_F(DashboardModelTest, TheScoreAndTheDaysTotalNeedNotAgree) {
    fixture_.daily.set(Seconds(1000), DayKey("2026-01-15"));
    book(editor, "2026-01-15", 60);
    model_.reload();
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
    EXPECT_THAT(rowsOfProjects(), ElementsAre("__untagged__ 1000"));
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

TEST_F(DashboardModelTest, TodayHasNoNextDayAndIsNotReloaded) {
    int announced = 0;
    const auto connection = model_.changed.connect([&](Field) { ++announced; });
    model_.nextDay();
    EXPECT_EQ(announced, 0);
    EXPECT_EQ(model_.selectedDate(), world_.clock.now());
}

TEST_F(DashboardModelTest, StepsThroughDaysAndBackToToday) {
    book(editor, "2026-01-13", 60);
    model_.previousDay();
    model_.previousDay();
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-13"));
    EXPECT_FALSE(model_.isSelectedToday());
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
    model_.nextDay();
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-14"));
    world_.clock.advance(1h);
    model_.today();
    EXPECT_TRUE(model_.isSelectedToday());
    EXPECT_EQ(model_.selectedDate(), world_.clock.now());
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
}

TEST_F(DashboardModelTest, AStepAnnouncesTheDateAndThenReloads) {
    std::vector<Field> order;
    const auto connection = model_.changed.connect([&](Field field) { order.push_back(field); });
    model_.previousDay();
    ASSERT_THAT(order, SizeIs(9));
    EXPECT_EQ(order.front(), Field::selectedDate);
    EXPECT_EQ(order.back(), Field::avg7Score);
}

TEST_F(DashboardModelTest, StepsKeepTheTimeOnTheClockWhenTheClockChanges) {
    world_.clock.setZone(platform::madridZone());
    world_.clock.setNow(sys_days(2026y / 3 / 30) + 22h + 30min);  // half past midnight on the 31st
    DashboardModel model(fixture_.sources());
    for (const auto* day : {"2026-03-30", "2026-03-29", "2026-03-28"}) {
        model.previousDay();
        EXPECT_EQ(model.selectedDayKey(), DayKey(day));
    }
    EXPECT_EQ(model.selectedDate(), sys_days(2026y / 3 / 27) + 23h + 30min);
    model.nextDay();
    model.nextDay();
    EXPECT_EQ(model.selectedDayKey(), DayKey("2026-03-30"));
}

TEST_F(DashboardModelTest, TheDayIsThatOfTheCalendarWhereverTheUsersDayMayStart) {
    fixture_.settings.setDayStartHour(5);
    world_.clock.setNow(sys_days(2026y / 1 / 16) + 2h);
    DashboardModel model(fixture_.sources());
    EXPECT_EQ(model.selectedDayKey(), DayKey("2026-01-16"));
    EXPECT_TRUE(model.isSelectedToday());
    model.reload();
    EXPECT_EQ(model.hourSummaries().front().hour, 5);
}

TEST_F(DashboardModelTest, TheKeyStaysInTheZoneOfTheStartAndTodayIsThatOfTheMoment) {
    world_.clock.setZone(platform::fixedZone(10h));  // 19:00 there
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-15"));
    world_.clock.advance(6h);  // 15:00 in UTC, 01:00 of the 16th there
    EXPECT_FALSE(model_.isSelectedToday());
    model_.today();
    EXPECT_TRUE(model_.isSelectedToday());
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-15"));
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

TEST_F(DashboardModelTest, AnotherClassificationCountsForPastDaysAtTheNextReload) {
    book(music, "2026-01-14", 60);
    model_.previousDay();
    EXPECT_EQ(model_.score().neutralSeconds, Seconds(60));
    fixture_.categories.setTier(Tier::productive, Category::music);
    model_.reload();
    EXPECT_EQ(model_.score().productiveSeconds, Seconds(60));
    EXPECT_EQ(model_.allDayApps()[0].tier, Tier::productive);
}

TEST_F(DashboardModelTest, TodayIsReloadedEveryTwoSecondsAlsoWhileAMenuIsOpen) {
    world_.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    model_.startLiveRefresh();
    book(editor, "2026-01-15", 60);
    world_.mainLoop.runFor(1999ms);
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    world_.mainLoop.runFor(1ms);
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
    book(editor, "2026-01-15", 1);
    world_.mainLoop.runFor(2s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds(61));
}

TEST_F(DashboardModelTest, APastDayIsStaticWhileTheTimerRunsOn) {
    model_.previousDay();
    model_.startLiveRefresh();
    book(editor, "2026-01-14", 60);
    world_.mainLoop.runFor(10s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    EXPECT_EQ(world_.mainLoop.timerCount(), 1U);
    model_.nextDay();
    book(editor, "2026-01-15", 5);
    world_.mainLoop.runFor(2s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds(5));
}

TEST_F(DashboardModelTest, MidnightMakesTheDayOnShowAPastOne) {
    world_.clock.setNow(sys_days(2026y / 1 / 15) + 23h + 59min + 59s);
    DashboardModel model(fixture_.sources());
    model.startLiveRefresh();
    book(editor, "2026-01-15", 60);
    world_.mainLoop.runFor(10s);
    EXPECT_FALSE(model.isSelectedToday());
    EXPECT_EQ(model.totalActiveToday(), Seconds());
}

TEST_F(DashboardModelTest, TheLiveRefreshIsOneTimerThatStops) {
    model_.startLiveRefresh();
    model_.startLiveRefresh();
    EXPECT_EQ(world_.mainLoop.timerCount(), 1U);
    model_.stopLiveRefresh();
    model_.stopLiveRefresh();
    EXPECT_EQ(world_.mainLoop.timerCount(), 0U);
    book(editor, "2026-01-15", 60);
    world_.mainLoop.runFor(10s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
}

TEST_F(DashboardModelTest, TheTimerEndsWithTheModelAndMayBeStoppedFromWithinAReload) {
    {
        DashboardModel model(fixture_.sources());
        model.startLiveRefresh();
        EXPECT_EQ(world_.mainLoop.timerCount(), 1U);
    }
    EXPECT_EQ(world_.mainLoop.timerCount(), 0U);
    model_.startLiveRefresh();
    const auto connection = model_.changed.connect([&](Field) { model_.stopLiveRefresh(); });
    world_.mainLoop.runFor(10s);
    EXPECT_EQ(world_.mainLoop.timerCount(), 0U);
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
