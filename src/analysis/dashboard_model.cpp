#include "analysis/dashboard_model.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <iterator>
#include <utility>

#include "base/calendar_day.h"
#include "base/lower_case.h"
#include "base/trim.h"
#include "core/local_time.h"

namespace tidewatch {
namespace {

constexpr std::size_t maxTopAppsOfProject = 6;
constexpr int daysOfTheMean = 7;
constexpr std::chrono::milliseconds refreshInterval(2000);

constexpr std::array<std::string_view, 8> tabNames{"Overview",  "Metas",   "Detalle", "Timesheet",
                                                   "Proyectos", "Sistema", "Disco",   "Claude"};

bool contains(std::string_view text, std::string_view query) {
    return lowerCased(text).find(query) != std::string::npos;
}

bool isFoundBy(const AppEntry& app, std::string_view query) {
    return query.empty() || contains(app.name, query) || contains(app.app.text(), query) ||
           contains(rawValue(app.category), query);
}

}  // namespace

std::string_view rawValue(DashboardTab tab) {
    return tabNames[static_cast<std::size_t>(tab)];
}

std::optional<DashboardTab> dashboardTab(std::string_view label) {
    const auto* const found = std::ranges::find(tabNames, label);
    if (found == tabNames.end()) return std::nullopt;
    return static_cast<DashboardTab>(found - tabNames.begin());
}

DashboardModel::DashboardModel(const Sources& sources)
    : sources_(sources),
      namingZone_(sources.clock.timeZone()),
      selectedDate_(sources.clock.now()),
      tierFilter_(allTiers().begin(), allTiers().end()) {}

DashboardModel::~DashboardModel() = default;

template <class Value>
void DashboardModel::assign(Value& field, Value value, Field which) {
    field = std::move(value);
    changed.emit(which);
}

void DashboardModel::setTab(DashboardTab tab) {
    assign(tab_, tab, Field::tab);
}

DayKey DashboardModel::selectedDayKey() const {
    return keyOf(selectedDate_);
}

bool DashboardModel::isSelectedToday() const {
    const auto zone = sources_.clock.timeZone();
    const auto dayOf = [&](Instant instant) { return calendarDay(instant, zone->utcOffset(instant)); };
    return dayOf(selectedDate_) == dayOf(sources_.clock.now());
}

bool DashboardModel::isRecordEmpty() const {
    return allDayApps_.empty() && sources_.apps.allDayKeys().empty();
}

void DashboardModel::previousDay() {
    moveByDays(-1);
}

void DashboardModel::nextDay() {
    if (!isSelectedToday()) moveByDays(1);
}

void DashboardModel::today() {
    assign(selectedDate_, sources_.clock.now(), Field::selectedDate);
    reload();
}

void DashboardModel::moveByDays(int count) {
    assign(selectedDate_, plusDays(selectedDate_, std::chrono::days(count), *sources_.clock.timeZone()),
           Field::selectedDate);
    reload();
}

void DashboardModel::toggleTier(Tier tier) {
    auto filter = tierFilter_;
    if (filter.erase(tier) == 0) filter.insert(tier);
    assign(tierFilter_, std::move(filter), Field::tierFilter);
}

void DashboardModel::setSearchText(std::string_view text) {
    assign(searchText_, std::string(text), Field::searchText);
}

std::vector<AppEntry> DashboardModel::filteredApps() const {
    const auto query = lowerCased(trimmedOfBlanks(searchText_));
    std::vector<AppEntry> found;
    std::ranges::copy_if(allDayApps_, std::back_inserter(found), [&](const AppEntry& app) {
        return tierFilter_.contains(app.tier) && isFoundBy(app, query);
    });
    return found;
}

std::vector<AppEntry> DashboardModel::apps(Tier tier) const {
    std::vector<AppEntry> ofTier;
    std::ranges::copy_if(allDayApps_, std::back_inserter(ofTier),
                         [&](const AppEntry& app) { return app.tier == tier; });
    return ofTier;
}

Seconds DashboardModel::seconds(Tier tier) const {
    Seconds sum;
    for (const auto& app : allDayApps_) {
        if (app.tier == tier) sum += app.seconds;
    }
    return sum;
}

void DashboardModel::reload() {
    const auto day = selectedDayKey();
    assign(allDayApps_, readApps(day), Field::allDayApps);
    assign(hourSummaries_, dayHourSummaries(sources_.hours, sources_.categories, sources_.keys, day),
           Field::hourSummaries);
    assign(hourGroups_,
           tidewatch::hourGroups(sources_.minutes, sources_.categories, sources_.appInfo, sources_.keys, day),
           Field::hourGroups);
    assign(projectRows_, readProjectRows(day), Field::projectRows);
    assign(score_, sources_.scorer.compute({&day, 1}), Field::score);
    assign(totalActiveToday_, score_.totalActive(), Field::totalActiveToday);
    assign(prevScore_, scoreOfDayBefore(1), Field::prevScore);
    assign(avg7Score_, meanOfSevenDaysBefore(), Field::avg7Score);
}

void DashboardModel::startLiveRefresh() {
    if (liveTimer_) return;
    liveTimer_ =
        sources_.mainLoop.repeat(refreshInterval, platform::TimerMode::common, [this] { refresh(); });
}

void DashboardModel::refresh() {
    const bool today = isSelectedToday();
    if (std::exchange(wasSelectedToday_, today) != today) changed.emit(Field::isSelectedToday);
    if (today) reload();
}

void DashboardModel::stopLiveRefresh() {
    liveTimer_.reset();
}

DayKey DashboardModel::keyOf(Instant instant) const {
    return toDayKey(calendarDay(instant, namingZone_->utcOffset(instant)));
}

AppEntry DashboardModel::entry(const AppSeconds& app) const {
    return appEntry(app, sources_.appInfo, sources_.categories);
}

std::vector<AppEntry> DashboardModel::readApps(const DayKey& day) const {
    std::vector<AppEntry> apps;
    for (const auto& app : sources_.apps.aggregate({&day, 1})) apps.push_back(entry(app));
    return apps;
}

std::vector<ProjectRow> DashboardModel::readProjectRows(const DayKey& day) const {
    std::vector<ProjectRow> rows;
    Seconds tagged;
    for (const auto& project : sources_.projects.activeProjects()) {
        auto row = readProjectRow(day, project);
        if (row.seconds < Seconds(1)) continue;
        tagged += row.seconds;
        rows.push_back(std::move(row));
    }
    const auto rest = sources_.days.seconds(day) - tagged;
    if (rest > Seconds()) rows.push_back({std::string(ProjectRow::untaggedId), std::nullopt, rest, {}});
    std::ranges::stable_sort(rows, std::ranges::greater(), &ProjectRow::seconds);
    return rows;
}

ProjectRow DashboardModel::readProjectRow(const DayKey& day, const Project& project) const {
    ProjectRow row{project.id.text(), project, Seconds(), {}};
    for (const auto& app : sources_.projectTime.aggregate({&day, 1}, project.id)) {
        row.seconds += app.seconds;
        if (row.topApps.size() < maxTopAppsOfProject) row.topApps.push_back(entry(app));
    }
    return row;
}

ProductivityScore DashboardModel::scoreOfDayBefore(int daysBefore) const {
    const auto day =
        keyOf(plusDays(selectedDate_, std::chrono::days(-daysBefore), *sources_.clock.timeZone()));
    return sources_.scorer.compute({&day, 1});
}

double DashboardModel::meanOfSevenDaysBefore() const {
    double sum = 0;
    int count = 0;
    for (int daysBefore = 1; daysBefore <= daysOfTheMean; ++daysBefore) {
        const auto score = scoreOfDayBefore(daysBefore);
        if (!score.isSignificant()) continue;
        sum += score.score();
        ++count;
    }
    return count == 0 ? 0 : sum / count;
}

}  // namespace tidewatch
