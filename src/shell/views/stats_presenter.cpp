#include "shell/views/stats_presenter.h"

#include <algorithm>
#include <utility>

#include "ui/texts/display_text.h"

namespace tidewatch {

StatsPresenter::StatsPresenter(const platform::Platform& platform, Services& services, Commands commands)
    : services_(services),
      commands_(std::move(commands)),
      model_({.clock = platform.clock,
              .mainLoop = platform.mainLoop,
              .days = services.days,
              .apps = services.apps,
              .hours = services.hours,
              .minutes = services.minutes,
              .keys = services.keys,
              .categories = services.categories,
              .scorer = services.scorer,
              .projects = services.projects,
              .projectTime = services.projectTime,
              .appInfo = services.appInfo}),
      engine_(platform.clock, services.days, services.hours, services.minutes, services.categories),
      wallTime_(platform.clock),
      header_(model_, engine_),
      overview_(model_),
      insights_(engine_, platform.mainLoop),
      goals_(model_,
             {.evaluator = services.goalEvaluator, .rewards = services.rewards, .goals = services.goals},
             commands_.exportReport),
      details_(model_, [this](const AppId& app, QPointF at) { commands_.reclassify(model_, app, at); }),
      timesheet_(model_),
      projects_(model_, services.projects, services.days),
      breakAlert_(services.breakReminder),
      rows_({{DashboardTab::overview, &overview_},
             {DashboardTab::goals, &goals_},
             {DashboardTab::details, &details_},
             {DashboardTab::timesheet, &timesheet_},
             {DashboardTab::projects, &projects_}}),
      willShow_(services.broadcaster.observe<DashboardWillShow>([this](const auto&) { reloadAll(); })) {}

QStringList StatsPresenter::tabs() const {
    QStringList labels;
    for (const auto& row : rows_) labels.append(text(rawValue(row.tab)));
    return labels;
}

int StatsPresenter::tabIndex() const {
    const auto shown = [this](const TabRow& row) { return row.tab == model_.tab(); };
    return static_cast<int>(std::find_if(rows_.begin(), rows_.end(), shown) - rows_.begin());
}

void StatsPresenter::selectTab(int index) {
    if (index < 0 || index >= static_cast<int>(rows_.size()) || index == tabIndex()) return;
    model_.setTab(rows_[static_cast<std::size_t>(index)].tab);
    updateOnShow();
    Q_EMIT tabChanged();
}

void StatsPresenter::disappear() {
    appeared_ = false;
    model_.stopLiveRefresh();
    updateOnShow();
}

void StatsPresenter::reloadAll() {
    services_.days.flush();
    services_.apps.flush();
    services_.hours.flush();
    services_.minutes.flush();
    model_.reload();
    model_.startLiveRefresh();
    appeared_ = true;
    updateOnShow();
}

void StatsPresenter::updateOnShow() {
    for (const auto& row : rows_) row.presenter->setOnShow(appeared_ && row.tab == model_.tab());
    insights_.setOnShow(overview_.isOnShow());
}

}  // namespace tidewatch
