#include "tools/demo/demo_record.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "analysis/goal_settings_json.h"
#include "base/calendar_day.h"
#include "core/counter_json.h"
#include "shell/widgets/widget_state.h"
#include "tests/support/temporary_directory.h"
#include "tools/demo/demo_applications.h"
#include "tools/demo/demo_home.h"

namespace tidewatch::demo {
namespace {

using namespace std::chrono;

constexpr WallMoment afternoon{sys_days(year(2026) / 4 / 21), hours(16) + minutes(37)};

/// The sums of a record under the first `length` letters of its keys; for 10 that is the day.
std::map<std::string, Seconds> sums(const CounterRecord& record, std::size_t level = 0,
                                    std::optional<CounterRecord::Range> nodes = std::nullopt,
                                    const std::string& day = "") {
    std::map<std::string, Seconds> result;
    const auto range = nodes.value_or(record.top());
    for (auto node = range.begin; node < range.end; ++node) {
        const auto key = level == 0 ? std::string(record.text(0, node).substr(0, 10)) : day;
        if (level + 1 == record.depth()) {
            result[key] += record.seconds(node);
        } else {
            for (const auto& [inner, seconds] : sums(record, level + 1, record.children(level, node), key)) {
                result[inner] += seconds;
            }
        }
    }
    return result;
}

CounterRecord parsed(const test::TemporaryDirectory& home, const std::string& name, std::size_t depth) {
    auto record = parseCounters(home.read(".tidewatch/" + name), depth);
    EXPECT_TRUE(record.has_value()) << name;
    return record ? std::move(*record) : CounterRecord(depth);
}

TEST(DemoRecord, EveryFileOfTheHomeCanBeReadAndHoldsTheRecord) {
    const test::TemporaryDirectory home;
    const auto record = makeDemoRecord(afternoon);
    writeDemoHome(record, home.path(), "/icons");
    EXPECT_EQ(sums(parsed(home, "today.json", 1)), sums(record.today));
    EXPECT_EQ(sums(parsed(home, "apps.json", 2)), sums(record.apps));
    EXPECT_EQ(sums(parsed(home, "hours.json", 2)), sums(record.hours));
    EXPECT_EQ(sums(parsed(home, "minutes.json", 2)), sums(record.minutes));
    EXPECT_EQ(sums(parsed(home, "project_time.json", 3)), sums(record.projectTime));
    EXPECT_EQ(parseProjects(home.read(".tidewatch/projects.json")), record.projects);
    EXPECT_EQ(parseCategoryOverrides(home.read(".tidewatch/categories.json")), record.overrides);
    EXPECT_EQ(parseGoalSettings(home.read(".tidewatch/goals.json")), record.goals);
}

TEST(DemoRecord, AllWidgetsAreOnTheDesktopAndNoneCoversAnother) {
    const test::TemporaryDirectory home;
    writeDemoHome(makeDemoRecord(afternoon), home.path(), "/icons");
    const auto states = parseWidgetStates(home.read(".tidewatch/widgets.json"));
    ASSERT_TRUE(states.has_value());
    const auto overlap = [&](WidgetKind one, WidgetKind other) {
        const auto a = states->at(one).place().value();
        const auto b = states->at(other).place().value();
        return a.x < b.x + defaultSize(other).width && b.x < a.x + defaultSize(one).width &&
               a.y < b.y + defaultSize(other).height && b.y < a.y + defaultSize(one).height;
    };
    for (const auto one : allWidgetKinds()) {
        EXPECT_TRUE(states->at(one).visible) << rawValue(one);
        for (const auto other : allWidgetKinds())
            EXPECT_TRUE(one == other || !overlap(one, other)) << rawValue(one) << " " << rawValue(other);
    }
}

TEST(DemoRecord, TheFilesAgreeOnEveryDay) {
    const auto record = makeDemoRecord(afternoon);
    const auto days = sums(record.today);
    EXPECT_EQ(sums(record.apps), days);
    EXPECT_EQ(sums(record.hours), days);
    EXPECT_EQ(sums(record.minutes), days);
    for (const auto& [day, seconds] : sums(record.projectTime)) EXPECT_LE(seconds, days.at(day)) << day;
}

TEST(DemoRecord, NoBucketHoldsMoreThanItsTenMinutes) {
    const auto record = makeDemoRecord(afternoon);
    for (auto bucket = record.minutes.top().begin; bucket < record.minutes.top().end; ++bucket) {
        Seconds sum;
        const auto apps = record.minutes.children(0, bucket);
        for (auto app = apps.begin; app < apps.end; ++app) sum += record.minutes.seconds(app);
        ASSERT_LE(sum, Seconds(600)) << record.minutes.text(0, bucket);
    }
}

TEST(DemoRecord, IsAYearThatEndsNow) {
    const auto record = makeDemoRecord(afternoon);
    const auto days = sums(record.today);
    EXPECT_GE(days.begin()->first, "2025-04-22");
    EXPECT_LE(days.begin()->first, "2025-04-30");
    EXPECT_EQ(days.rbegin()->first, "2026-04-21");
    const auto& minutes = record.minutes;
    EXPECT_EQ(minutes.text(0, minutes.top().end - 1).substr(0, 13), "2026-04-21 16");
    EXPECT_LE(minutes.text(0, minutes.top().end - 1), "2026-04-21 16:30");
}

TEST(DemoRecord, WeeksAreWorkedAndWeekendsMostlyFree) {
    const auto worked = sums(makeDemoRecord(afternoon).today);
    int weekdays = 0;
    int weekends = 0;
    for (auto day = afternoon.day - days(364); day <= afternoon.day; day += days(1)) {
        if (!worked.contains(toDayKey(day).text())) continue;
        const weekday name(day);
        ++(name == Saturday || name == Sunday ? weekends : weekdays);
    }
    EXPECT_GT(weekdays, 210);
    EXPECT_LT(weekdays, 250);
    EXPECT_GT(weekends, 4);
    EXPECT_LT(weekends, 24);
}

TEST(DemoRecord, TheDailyGoalIsReachedOnManyDaysAndMissedOnMany) {
    const auto record = makeDemoRecord(afternoon);
    int reached = 0;
    int missed = 0;
    for (const auto& [day, seconds] : sums(record.today)) {
        ++(static_cast<double>(seconds.count()) >= record.goals.dailyHours * 3600 ? reached : missed);
    }
    EXPECT_GT(reached, 60);
    EXPECT_GT(missed, 60);
}

TEST(DemoRecord, EverythingWorkedInIsKnownToTheDesktopButOneThing) {
    std::set<std::string_view> known;
    for (const auto& app : demoApplications()) known.insert(app.id);
    std::set<std::string> unknown;
    const auto record = makeDemoRecord(afternoon);
    for (std::uint32_t id = 0; id < record.apps.nameCount(); ++id) {
        if (!known.contains(record.apps.name(id))) unknown.insert(std::string(record.apps.name(id)));
    }
    EXPECT_EQ(unknown, std::set<std::string>{"build-monitor"});
}

TEST(DemoRecord, ThreeProjectsAreWorkedOnAndOneIsArchived) {
    const auto record = makeDemoRecord(afternoon);
    ASSERT_EQ(record.projects.projects.size(), 4U);
    std::set<std::string> archived;
    for (const auto& project : record.projects.projects) {
        if (project.archived) archived.insert(project.name);
        EXPECT_FALSE(project.colorHex.empty());
    }
    EXPECT_EQ(archived, std::set<std::string>{"Festival de otoño"});
    EXPECT_EQ(record.projects.activeId, record.projects.projects[1].id);
}

TEST(DemoRecord, TheSameMomentGivesTheSameRecordAndALaterOneTheSamePast) {
    const auto earlier = sums(makeDemoRecord(afternoon).minutes);
    EXPECT_EQ(sums(makeDemoRecord(afternoon).minutes), earlier);
    auto later = sums(makeDemoRecord({afternoon.day, hours(19)}).minutes);
    EXPECT_GT(later.at("2026-04-21"), earlier.at("2026-04-21"));
    later["2026-04-21"] = earlier.at("2026-04-21");
    EXPECT_EQ(later, earlier);
}

TEST(DemoRecord, TodayHasBegunAtAnyTimeOfTheDay) {
    for (const auto now : {minutes(10), minutes(300), minutes(9 * 60 + 5), minutes(23 * 60 + 59)}) {
        const auto days = sums(makeDemoRecord({sys_days(year(2026) / 4 / 19), now}).today);
        EXPECT_GT(days.at("2026-04-19").count(), std::min(now, minutes(200)).count() * 30) << now.count();
    }
}

TEST(DemoRecord, DesktopEntriesNameTheApplications) {
    const test::TemporaryDirectory home;
    writeDemoHome(makeDemoRecord(afternoon), home.path(), "/icons");
    EXPECT_EQ(home.read(".local/share/applications/org.gimp.GIMP.desktop"),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Editor de imágenes GIMP\n"
              "Name[es]=Editor de imágenes GIMP\n"
              "Exec=true\n"
              "Icon=/icons/org.gimp.GIMP.png\n"
              "Categories=Graphics;2DGraphics;RasterGraphics;\n");
}

}  // namespace
}  // namespace tidewatch::demo
