#include "shell/views/stats_presenter.h"

#include <algorithm>
#include <utility>

#include "ui/texts/display_text.h"

namespace tidewatch {

StatsPresenter::StatsPresenter(const Sources& from, Commands commands)
    : counters_(from.counters),
      commands_(std::move(commands)),
      model_({.clock = from.clock,
              .mainLoop = from.mainLoop,
              .days = from.counters.daily,
              .apps = from.counters.apps,
              .hours = from.counters.hours,
              .minutes = from.counters.minutes,
              .keys = from.keys,
              .categories = from.categories,
              .scorer = from.scorer,
              .projects = from.projects,
              .projectTime = from.projectTime,
              .appInfo = from.appInfo}),
      engine_(from.clock, from.counters.daily, from.counters.hours, from.counters.minutes, from.categories),
      wallTime_(from.clock),
      header_(model_, engine_),
      overview_(model_),
      insights_(engine_, from.mainLoop),
      goals_(model_, {.evaluator = from.goalEvaluator, .rewards = from.rewards, .goals = from.goals},
             commands_.exportReport),
      details_(model_, [this](const AppId& app, QPointF at) { commands_.reclassify(model_, app, at); }),
      timesheet_(model_),
      projects_(model_, from.projects, from.counters.daily),
      breakAlert_(from.breakReminder),
      rows_({{DashboardTab::overview, &overview_},
             {DashboardTab::goals, &goals_},
             {DashboardTab::details, &details_},
             {DashboardTab::timesheet, &timesheet_},
             {DashboardTab::projects, &projects_}}),
      willShow_(from.broadcaster.observe<DashboardWillShow>([this](const auto&) { reloadAll(); })) {}

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
    counters_.daily.flush();
    counters_.apps.flush();
    counters_.hours.flush();
    counters_.minutes.flush();
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
