#pragma once

#include <QPointF>
#include <QString>
#include <functional>
#include <vector>

#include "analysis/dashboard_model.h"
#include "analysis/insights_engine.h"
#include "analysis/views/details_presenter.h"
#include "analysis/views/goals_presenter.h"
#include "analysis/views/header_presenter.h"
#include "analysis/views/insights_presenter.h"
#include "analysis/views/overview_page.h"
#include "analysis/views/overview_presenter.h"
#include "analysis/views/projects_presenter.h"
#include "analysis/views/timesheet_presenter.h"
#include "ui/models/pane.h"

namespace tidewatch {

/// The tabs of the record in the statistics window, and their state: selected tab, day and filters. Main
/// thread only.
class Dashboard final {
public:
    /// All of it must outlive the dashboard.
    struct Sources {
        DashboardModel::Sources model;
        GoalStore& goals;
        const GoalEvaluator& goalEvaluator;
        const RewardEngine& rewards;
    };

    /// Commands implemented elsewhere.
    struct Commands {
        std::function<void()> exportReport;
        /// Opens the menu to reclassify an application at a desktop position.
        std::function<void(DashboardModel& model, const AppId& app, QPointF at)> reclassify;
    };

    Dashboard(const Sources& from, Commands commands);

    /// Its tabs in display order; their ids are raw values of DashboardTab.
    [[nodiscard]] std::vector<Pane> tabs();

    /// The id of the selected tab; it may belong to another room.
    [[nodiscard]] QString selectedTab() const;
    /// An id unknown to DashboardTab has no effect.
    void selectTab(const QString& id);

    [[nodiscard]] DashboardModel& model() { return model_; }
    [[nodiscard]] HeaderPresenter* header() { return &header_; }
    [[nodiscard]] OverviewPresenter* overview() { return &overview_; }
    [[nodiscard]] InsightsPresenter* insights() { return &insights_; }
    [[nodiscard]] GoalsPresenter* goals() { return &goals_; }
    [[nodiscard]] DetailsPresenter* details() { return &details_; }
    [[nodiscard]] TimesheetPresenter* timesheet() { return &timesheet_; }
    [[nodiscard]] ProjectsPresenter* projects() { return &projects_; }

private:
    Commands commands_;
    DashboardModel model_;
    InsightsEngine engine_;
    HeaderPresenter header_;
    OverviewPresenter overview_;
    InsightsPresenter insights_;
    OverviewPage overviewPage_;
    GoalsPresenter goals_;
    DetailsPresenter details_;
    TimesheetPresenter timesheet_;
    ProjectsPresenter projects_;
};

}  // namespace tidewatch
