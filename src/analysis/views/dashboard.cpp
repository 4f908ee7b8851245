#include "analysis/views/dashboard.h"

#include <utility>

#include "ui/texts/qt_text.h"

namespace tidewatch {

Dashboard::Dashboard(const Sources& from, Commands commands)
    : commands_(std::move(commands)),
      model_(from.model),
      engine_(from.model.clock, from.model.days, from.model.hours, from.model.minutes, from.model.categories),
      header_(model_, engine_),
      overview_(model_),
      insights_(engine_, from.model.mainLoop),
      overviewPage_(overview_, insights_),
      goals_(model_, {.evaluator = from.goalEvaluator, .rewards = from.rewards, .goals = from.goals},
             commands_.exportReport),
      details_(model_, [this](const AppId& app, QPointF at) { commands_.reclassify(model_, app, at); }),
      timesheet_(model_),
      projects_(model_, from.model.projects, from.model.days) {}

std::vector<Pane> Dashboard::tabs() {
    const auto tab = [](DashboardTab which, const QString& view, QObject& presenter) {
        const auto name = text(rawValue(which));
        return Pane{
            .id = name, .title = name, .view = viewUrl("Tidewatch.Analysis", view), .presenter = &presenter};
    };
    return {
        tab(DashboardTab::overview, "OverviewTab", overviewPage_),
        tab(DashboardTab::goals, "GoalsTab", goals_),
        tab(DashboardTab::details, "DetailsTab", details_),
        tab(DashboardTab::timesheet, "TimesheetTab", timesheet_),
        tab(DashboardTab::projects, "ProjectsTab", projects_),
    };
}

QString Dashboard::selectedTab() const {
    return text(rawValue(model_.tab()));
}

void Dashboard::selectTab(const QString& id) {
    if (const auto tab = dashboardTab(id.toStdString())) model_.setTab(*tab);
}

}  // namespace tidewatch
