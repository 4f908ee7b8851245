#include "shell/views/stats_presenter.h"

#include <algorithm>
#include <utility>

#include "ui/texts/display_text.h"

namespace tidewatch {

StatsPresenter::StatsPresenter(const Sources& sources, Commands commands)
    : counters_(sources.counters),
      commands_(std::move(commands)),
      model_({.clock = sources.clock,
              .mainLoop = sources.mainLoop,
              .days = sources.counters.daily,
              .apps = sources.counters.apps,
              .hours = sources.counters.hours,
              .minutes = sources.counters.minutes,
              .keys = sources.keys,
              .categories = sources.categories,
              .scorer = sources.scorer,
              .projects = sources.projects,
              .projectTime = sources.projectTime,
              .appInfo = sources.appInfo}),
      engine_(sources.clock, sources.counters.daily, sources.counters.hours, sources.counters.minutes,
              sources.categories),
      wallClock_(sources.clock),
      header_(model_, engine_),
      overview_(model_),
      insights_(engine_, sources.mainLoop),
      goals_(model_, {.evaluator = sources.goalEvaluator, .rewards = sources.rewards, .goals = sources.goals},
             commands_.exportReport),
      details_(model_, [this](const AppId& app, QPointF at) { commands_.reclassify(model_, app, at); }),
      timesheet_(model_),
      projects_(model_, sources.projects, sources.counters.daily),
      breakAlert_(sources.breakReminder),
      rows_({{DashboardTab::overview, &overview_},
             {DashboardTab::goals, &goals_},
             {DashboardTab::details, &details_},
             {DashboardTab::timesheet, &timesheet_},
             {DashboardTab::projects, &projects_}}),
      willShow_(sources.broadcaster.observe<DashboardWillShow>([this](const auto&) { reloadAll(); })) {}

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
    updateVisibleTab();
    Q_EMIT tabChanged();
}

void StatsPresenter::disappear() {
    appeared_ = false;
    model_.stopLiveRefresh();
    updateVisibleTab();
}

void StatsPresenter::reloadAll() {
    counters_.daily.flush();
    counters_.apps.flush();
    counters_.hours.flush();
    counters_.minutes.flush();
    model_.reload();
    model_.startLiveRefresh();
    appeared_ = true;
    updateVisibleTab();
}

void StatsPresenter::updateVisibleTab() {
    for (const auto& row : rows_) row.presenter->setVisible(appeared_ && row.tab == model_.tab());
    insights_.setVisible(overview_.isVisible());
}

}  // namespace tidewatch
