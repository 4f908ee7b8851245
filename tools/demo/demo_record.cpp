#include "tools/demo/demo_record.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/calendar_day.h"
#include "core/clock_keys.h"
#include "projects/project_color_palette.h"
#include "tools/demo/work_day.h"
#include "tools/support/random.h"

namespace tidewatch::demo {

namespace {

using namespace std::chrono;

constexpr int daysOfRecord = 365;
constexpr int daysOfFinishedProject = 130;  // from the first day on
constexpr minutes minWorkedToday{4 * 60};

struct DemoProject {
    std::string_view name;
    bool archived;
};
constexpr std::array projectRows{DemoProject{"Festival de otoño", true},
                                 DemoProject{"Portal de clientes", false},
                                 DemoProject{"Tienda en línea", false}, DemoProject{"Guía ilustrada", false}};

Uuid projectId(std::size_t row) {
    return Uuid::random(0xD3A0, row);
}

ProjectList makeProjects() {
    ProjectList list;
    for (std::size_t row = 0; row < projectRows.size(); ++row) {
        const auto colors = projectColors();
        list.projects.push_back({projectId(row), std::string(projectRows[row].name),
                                 std::string(colors[row % colors.size()]), projectRows[row].archived});
    }
    list.activeId = projectId(1);
    return list;
}

/// Public holidays and two vacations.
bool isHoliday(sys_days day) {
    const year_month_day date(day);
    const auto isNth = [&](unsigned nth, month in) {
        return date.month() == in && day == sys_days(date.year() / in / Monday[nth]);
    };
    const auto monthDay = date.month() / date.day();
    return monthDay == January / 1 || isNth(1, February) || isNth(3, March) || monthDay == May / 1 ||
           monthDay == September / 16 || isNth(3, November) || monthDay >= December / 22 ||
           (monthDay >= July / 13 && monthDay <= July / 24);
}

DayPlan workingDay(std::uint32_t seed) {
    Random random(seed);
    DayPlan plan;
    plan.seed = seed + 1;
    const int temper = random.between(1, 100);
    plan.mood = temper <= 40 ? Mood::good : temper <= 80 ? Mood::usual : Mood::poor;
    plan.start = minutes(random.between(8 * 60 + 20, 9 * 60 + 50));
    plan.target = minutes(plan.mood == Mood::poor ? random.between(300, 400) : random.between(405, 500));
    plan.meeting = random.percent(45);
    plan.evening = random.percent(35);
    return plan;
}

/// Nullopt on a day off.
std::optional<DayPlan> planOf(sys_days day, std::uint32_t seed) {
    auto plan = workingDay(seed);
    Random random(seed + 2);
    const weekday name(day);
    if (name == Saturday || name == Sunday) {
        if (!random.percent(name == Saturday ? 16 : 5)) return std::nullopt;
        plan.start += minutes(90);
        plan.target = minutes(random.between(80, 200));
        plan.meeting = false;
        return plan;
    }
    if (isHoliday(day) || random.percent(3)) return std::nullopt;
    return plan;
}

/// Today counts only up to now, so that it has to have begun in time.
DayPlan planOfToday(minutes now, std::uint32_t seed) {
    auto plan = workingDay(seed);
    plan.mood = Mood::usual;
    plan.start = std::max(minutes(0), std::min(plan.start, now - minWorkedToday));
    return plan;
}

class Maker final {
public:
    Maker(const WallMoment& now, std::uint32_t seed)
        : now_(now), seed_(seed), firstDay_(now.day - days(daysOfRecord - 1)) {}

    DemoRecord make() {
        for (auto day = firstDay_; day < now_.day; day += days(1)) {
            if (const auto plan = planOf(day, seedOf(day))) book(day, *plan, minutes(24 * 60));
        }
        book(now_.day, planOfToday(now_.sinceMidnight, seedOf(now_.day)), now_.sinceMidnight);
        record_.projects = makeProjects();
        record_.overrides = {.apps = {{AppId("org.telegram.desktop"), Category::social}},
                             .tiers = {{Category::browser, Tier::neutral}}};
        record_.goals = {.dailyHours = 7.0,
                         .dailyProductivity = 0.75,
                         .weeklyHours = 35.0,
                         .monthlyHours = 140.0,
                         .notificationsEnabled = true};
        return std::move(record_);
    }

private:
    [[nodiscard]] std::uint32_t seedOf(sys_days day) const {
        return seed_ + static_cast<std::uint32_t>(day.time_since_epoch().count()) * 10;
    }

    void book(sys_days day, const DayPlan& plan, minutes until) {
        const auto key = toDayKey(day);
        for (const auto& minute : liveThrough(plan)) {
            if (minute.sinceMidnight >= until) return;
            book(key, day, minute);
        }
    }

    /// The only place that knows which files contain a minute of work.
    void book(const DayKey& day, sys_days date, const WorkedMinute& minute) {
        const auto sinceMidnight = static_cast<int>(minute.sinceMidnight.count());
        const int hour = sinceMidnight / 60;
        const int tens = sinceMidnight % 60 / minutesPerBucket * minutesPerBucket;
        const auto hourText = hourKey(day, hour).text();
        const auto bucketText = bucketKey(day, {hour, tens}).text();
        const std::string_view dayText = day.text();
        const Seconds seconds(minute.seconds);
        record_.today.add(std::array{dayText}, seconds);
        record_.apps.add(std::array{dayText, minute.app}, seconds);
        record_.hours.add(std::array{std::string_view(hourText), minute.app}, seconds);
        record_.minutes.add(std::array{std::string_view(bucketText), minute.app}, seconds);
        if (minute.share == Share::none) return;
        const auto project = projectId(projectOf(date, minute.share)).text();
        record_.projectTime.add(std::array{dayText, std::string_view(project), minute.app}, seconds);
    }

    /// Mornings go to one project, afternoons to another, and what they are changes over the year.
    [[nodiscard]] std::size_t projectOf(sys_days day, Share share) const {
        const bool early = day < firstDay_ + days(daysOfFinishedProject);
        if (share == Share::first) return early ? 0 : 1;
        return early || weekday(day) == Tuesday || weekday(day) == Thursday ? 2 : 3;
    }

    const WallMoment now_;
    const std::uint32_t seed_;
    const sys_days firstDay_;
    DemoRecord record_;
};

}  // namespace

DemoRecord makeDemoRecord(const WallMoment& now, std::uint32_t seed) {
    return Maker(now, seed).make();
}

}  // namespace tidewatch::demo
