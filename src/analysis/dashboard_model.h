#pragma once

#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/app_entry.h"
#include "base/instant.h"
#include "base/seconds.h"
#include "base/signal.h"
#include "base/tagged_string.h"
#include "classification/app_info_resolver.h"
#include "classification/category_store.h"
#include "classification/hour_group.h"
#include "classification/hour_summary.h"
#include "classification/productivity_score.h"
#include "core/app_usage_store.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/hourly_store.h"
#include "core/minute_store.h"
#include "platform/api/clock.h"
#include "platform/api/main_loop.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// The tabs of the statistics window, in display order.
enum class DashboardTab { overview, goals, details, timesheet, projects, system, disk, claude };

/// Its label in the tab bar.
[[nodiscard]] std::string_view rawValue(DashboardTab tab);

/// The tab with that label; nullopt if there is none.
[[nodiscard]] std::optional<DashboardTab> dashboardTab(std::string_view label);

/// The time of one project in one day or, without a project, the untagged time.
struct ProjectRow {
    static constexpr std::string_view untaggedId = "__untagged__";

    std::string id;  ///< the project's in upper case, or untaggedId
    std::optional<Project> project;
    Seconds seconds;
    std::vector<AppEntry> topApps;  ///< at most six, in descending order; empty without a project
    bool operator==(const ProjectRow&) const = default;
};

/// One calendar day as shown in the statistics window, read from the stores on demand and never written. Main
/// thread only; reload() is synchronous.
class DashboardModel final {
public:
    /// All of it must outlive the model.
    struct Sources {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        const DailyStore& days;
        const AppUsageStore& apps;
        const HourlyStore& hours;
        const MinuteStore& minutes;
        const ClockKeys& keys;
        const CategoryStore& categories;
        const ProductivityScorer& scorer;
        const ProjectStore& projects;
        const ProjectTimeStore& projectTime;
        const AppInfoResolver& appInfo;
    };

    /// Starts on the current day, with every tier in the filter; empty until reload().
    explicit DashboardModel(const Sources& sources);
    ~DashboardModel();
    DashboardModel(const DashboardModel&) = delete;
    DashboardModel& operator=(const DashboardModel&) = delete;

    /// The observable fields.
    enum class Field {
        tab,
        selectedDate,
        allDayApps,
        hourSummaries,
        hourGroups,
        projectRows,
        score,
        totalActiveToday,
        prevScore,
        avg7Score,
        tierFilter,
        searchText,
        isSelectedToday,
    };

    /// Emitted after each assignment of a field, whether or not its value differs; a reload assigns from
    /// allDayApps to avg7Score in this order. isSelectedToday is computed: it is emitted when the live
    /// refresh detects that midnight has changed it.
    Signal<Field> changed;

    [[nodiscard]] DashboardTab tab() const { return tab_; }
    void setTab(DashboardTab tab);

    /// Any instant within the selected day.
    [[nodiscard]] Instant selectedDate() const { return selectedDate_; }
    /// The calendar day of selectedDate(), in the time zone at the model's construction.
    [[nodiscard]] DayKey selectedDayKey() const;
    [[nodiscard]] bool isSelectedToday() const;

    /// Change the selected day and reload; nextDay() has no effect on today.
    void previousDay();
    void nextDay();
    void today();

    /// Whether no application has been booked yet, on any day.
    [[nodiscard]] bool isRecordEmpty() const;

    /// In the order of AppUsageStore::aggregate.
    [[nodiscard]] const std::vector<AppEntry>& allDayApps() const { return allDayApps_; }
    [[nodiscard]] const std::vector<HourSummary>& hourSummaries() const { return hourSummaries_; }
    [[nodiscard]] const std::vector<HourGroup>& hourGroups() const { return hourGroups_; }
    /// In descending order of seconds.
    [[nodiscard]] const std::vector<ProjectRow>& projectRows() const { return projectRows_; }
    [[nodiscard]] const ProductivityScore& score() const { return score_; }
    /// Of the day before the selected one.
    [[nodiscard]] const ProductivityScore& prevScore() const { return prevScore_; }
    /// The mean score of those of the seven preceding days that have a significant one, 0 to 1; 0 if none
    /// has.
    [[nodiscard]] double avg7Score() const { return avg7Score_; }
    /// Of the selected day, despite its name.
    [[nodiscard]] Seconds totalActiveToday() const { return totalActiveToday_; }

    [[nodiscard]] const std::set<Tier>& tierFilter() const { return tierFilter_; }
    /// Removes the tier from the filter, or adds it.
    void toggleTier(Tier tier);
    [[nodiscard]] const std::string& searchText() const { return searchText_; }
    void setSearchText(std::string_view text);

    /// allDayApps() after tier filter and search.
    [[nodiscard]] std::vector<AppEntry> filteredApps() const;
    /// allDayApps() of one tier, regardless of filter and search.
    [[nodiscard]] std::vector<AppEntry> apps(Tier tier) const;
    [[nodiscard]] Seconds seconds(Tier tier) const;

    /// Rereads everything for the selected day.
    void reload();

    /// Reloads every two seconds while the selected day is today.
    void startLiveRefresh();
    void stopLiveRefresh();

private:
    template <class Value>
    void assign(Value& field, Value value, Field which);
    void moveByDays(int count);
    void refresh();
    [[nodiscard]] DayKey keyOf(Instant instant) const;
    [[nodiscard]] AppEntry entry(const AppSeconds& app) const;
    [[nodiscard]] std::vector<AppEntry> readApps(const DayKey& day) const;
    [[nodiscard]] std::vector<ProjectRow> readProjectRows(const DayKey& day) const;
    [[nodiscard]] ProjectRow readProjectRow(const DayKey& day, const Project& project) const;
    [[nodiscard]] ProductivityScore scoreOfDayBefore(int daysBefore) const;
    [[nodiscard]] double meanOfSevenDaysBefore() const;

    Sources sources_;
    std::shared_ptr<const platform::TimeZone> namingZone_;
    DashboardTab tab_ = DashboardTab::overview;
    Instant selectedDate_;
    bool wasSelectedToday_ = true;  ///< at the last live refresh
    std::vector<AppEntry> allDayApps_;
    std::vector<HourSummary> hourSummaries_;
    std::vector<HourGroup> hourGroups_;
    std::vector<ProjectRow> projectRows_;
    ProductivityScore score_;
    ProductivityScore prevScore_;
    double avg7Score_ = 0;
    Seconds totalActiveToday_;
    std::set<Tier> tierFilter_;
    std::string searchText_;
    std::unique_ptr<platform::RepeatingTimer> liveTimer_;
};

}  // namespace tidewatch
