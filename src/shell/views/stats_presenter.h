#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <functional>
#include <vector>

#include "analysis/dashboard_model.h"
#include "analysis/insights_engine.h"
#include "analysis/views/details_presenter.h"
#include "analysis/views/goals_presenter.h"
#include "analysis/views/header_presenter.h"
#include "analysis/views/insights_presenter.h"
#include "analysis/views/overview_presenter.h"
#include "analysis/views/projects_presenter.h"
#include "analysis/views/timesheet_presenter.h"
#include "base/signal.h"
#include "core/broadcaster.h"
#include "core/timer_engine.h"
#include "ui/backgrounds/wall_clock.h"
#include "wellbeing/views/break_presenter.h"

namespace tidewatch {

/// All that the statistics window shows, and its state: which tab, which day, which filters. It outlives the
/// window's views. Each time the window is about to be shown it brings the files and the figures up to date.
/// Main thread only.
class StatsPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QList<QString> tabs READ tabs CONSTANT FINAL)
    /// The place of the tab on show among tabs().
    Q_PROPERTY(int tabIndex READ tabIndex NOTIFY tabChanged FINAL)
    Q_PROPERTY(tidewatch::HeaderPresenter* header READ header CONSTANT FINAL)
    Q_PROPERTY(tidewatch::OverviewPresenter* overview READ overview CONSTANT FINAL)
    Q_PROPERTY(tidewatch::InsightsPresenter* insights READ insights CONSTANT FINAL)
    Q_PROPERTY(tidewatch::GoalsPresenter* goals READ goals CONSTANT FINAL)
    Q_PROPERTY(tidewatch::DetailsPresenter* details READ details CONSTANT FINAL)
    Q_PROPERTY(tidewatch::TimesheetPresenter* timesheet READ timesheet CONSTANT FINAL)
    Q_PROPERTY(tidewatch::ProjectsPresenter* projects READ projects CONSTANT FINAL)
    Q_PROPERTY(tidewatch::BreakPresenter* breakAlert READ breakAlert CONSTANT FINAL)
    Q_PROPERTY(tidewatch::WallClock* wallClock READ wallClock CONSTANT FINAL)

public:
    /// What the window's views lead to elsewhere.
    struct Commands {
        std::function<void()> exportReport;
        /// Opens the menu that reclassifies an application, at a point of the desktop.
        std::function<void(DashboardModel& model, const AppId& app, QPointF at)> reclassify;
    };

    /// What the window shows; all of it must outlive the presenter.
    struct Sources {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        Broadcaster& broadcaster;
        CounterStores counters;
        const ClockKeys& keys;
        const CategoryStore& categories;
        const ProductivityScorer& scorer;
        const AppInfoResolver& appInfo;
        const ProjectStore& projects;
        const ProjectTimeStore& projectTime;
        GoalStore& goals;
        const GoalEvaluator& goalEvaluator;
        const RewardEngine& rewards;
        BreakReminder& breakReminder;
    };

    StatsPresenter(const Sources& sources, Commands commands);

    [[nodiscard]] QStringList tabs() const;
    [[nodiscard]] int tabIndex() const;
    [[nodiscard]] HeaderPresenter* header() { return &header_; }
    [[nodiscard]] OverviewPresenter* overview() { return &overview_; }
    [[nodiscard]] InsightsPresenter* insights() { return &insights_; }
    [[nodiscard]] GoalsPresenter* goals() { return &goals_; }
    [[nodiscard]] DetailsPresenter* details() { return &details_; }
    [[nodiscard]] TimesheetPresenter* timesheet() { return &timesheet_; }
    [[nodiscard]] ProjectsPresenter* projects() { return &projects_; }
    [[nodiscard]] BreakPresenter* breakAlert() { return &breakAlert_; }
    [[nodiscard]] WallClock* wallClock() { return &wallClock_; }

    /// A place that is none of tabs() changes nothing.
    Q_INVOKABLE void selectTab(int index);

    /// The window was closed: nothing is refreshed any more.
    void disappear();

Q_SIGNALS:
    void tabChanged();

private:
    /// A tab that can be chosen, and who follows the model while it is on show.
    struct TabRow {
        DashboardTab tab;
        TabPresenter* presenter;
    };

    void reloadAll();
    void updateVisibleTab();

    const CounterStores counters_;
    Commands commands_;
    DashboardModel model_;
    InsightsEngine engine_;
    WallClock wallClock_;
    HeaderPresenter header_;
    OverviewPresenter overview_;
    InsightsPresenter insights_;
    GoalsPresenter goals_;
    DetailsPresenter details_;
    TimesheetPresenter timesheet_;
    ProjectsPresenter projects_;
    BreakPresenter breakAlert_;
    std::vector<TabRow> rows_;
    bool appeared_ = false;
    Connection willShow_;
};

}  // namespace tidewatch
