#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "app/desktop/statistics.h"
#include "app/services.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/views/stats_presenter.h"
#include "tests/support/fake_world.h"
#include "tests/wellbeing/games/scripted_keys.h"

namespace tidewatch {

/// The indexes of the statistics window's tabs.
inline constexpr int overviewTab = 0;
inline constexpr int goalsTab = 1;
inline constexpr int detailsTab = 2;
inline constexpr int timesheetTab = 3;
inline constexpr int projectsTab = 4;
inline constexpr int systemTab = 5;
inline constexpr int diskTab = 6;
inline constexpr int claudeTab = 7;

/// The statistics window's models on a fake machine; initially nothing is booked.
class StatsWorld {
public:
    StatsWorld();

    /// Books `seconds` to an application like a tick, in all four stores, in the ten minutes of local time
    /// that start at `hour` and `minute`.
    void book(const char* app, const DayKey& day, int hour, int minute, std::int64_t seconds);
    /// The same in the project's time.
    void bookProject(const Uuid& project, const char* app, const DayKey& day, std::int64_t seconds);

    /// Some weeks of realistic work until the afternoon of today, Thursday the 15th of January.
    void bookBelievableWork();

    /// Announces that the window is about to be shown.
    void appear() { services_.broadcaster.post(DashboardWillShow()); }

    [[nodiscard]] DayKey today() const { return services_.counting.days.today(); }

    test::FakeWorld machine_;
    Services services_{machine_.platform};
    ThemeController& theme_ = services_.theme;
    int reportsAsked_ = 0;
    std::vector<std::string> menusAsked_;  ///< the applications whose menus were requested
    test::ScriptedKeys keys_;
    Statistics statistics_;
    StatsPresenter& presenter_ = statistics_.presenter();
    Dashboard& dashboard_ = statistics_.dashboard();

private:
    void registerApplications();
    void bookDay(const DayKey& day, int seed);
    void bookToday();
};

/// The window's view on such a world, in a software-rendered window.
class StatsScene : public StatsWorld {
public:
    StatsScene();
    virtual ~StatsScene();

    /// Recreates the view in a window of this size, in points.
    void show(QSize size = {1360, 1000});

    /// The view's item with this objectName, or null.
    [[nodiscard]] QQuickItem* item(const QString& name) const;

    [[nodiscard]] QImage picture();

    QQmlEngine engine_;
    QQuickWindow window_;
    std::unique_ptr<QQuickItem> view_;
    QStringList viewWarnings_;
};

}  // namespace tidewatch
