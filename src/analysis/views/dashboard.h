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

/// What the statistics window shows of the record, and its state: which tab, which day, which filters. Main
/// thread only.
class Dashboard final {
public:
    /// What is shown; all of it must outlive the dashboard.
    struct Sources {
        DashboardModel::Sources model;
        GoalStore& goals;
        const GoalEvaluator& goalEvaluator;
        const RewardEngine& rewards;
    };

    /// What the views lead to elsewhere.
    struct Commands {
        std::function<void()> exportReport;
        /// Opens the menu that reclassifies an application, at a point of the desktop.
        std::function<void(DashboardModel& model, const AppId& app, QPointF at)> reclassify;
    };

    Dashboard(const Sources& from, Commands commands);

    /// Its tabs, in their order; an id is the raw value of a DashboardTab.
    [[nodiscard]] std::vector<Pane> tabs();

    /// The id of the tab that is selected; it may be one of another room.
    [[nodiscard]] QString selectedTab() const;
    /// An id that DashboardTab does not know changes nothing.
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
