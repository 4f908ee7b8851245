#include "analysis/views/goals_presenter.h"

#include <algorithm>
#include <utility>

#include "analysis/views/goal_steps.h"
#include "base/duration_format.h"
#include "shell/themes/dashboard_style.h"
#include "ui/style/qt_color.h"
#include "ui/symbols/stars.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr double unfinishedOpacity = 0.6;

QString figures(const GoalProgress& goal) {
    if (goal.isProductivity) return percentText(goal.currentScore) + " / " + percentText(goal.targetScore);
    return text(hm(goal.currentSeconds) + " / " + hm(goal.targetSeconds));
}

GoalRow goalRow(const GoalProgress& goal) {
    const bool reached = goal.fraction >= 1;
    const auto green = DashboardStyle::tierProductive;
    GoalRow row{.id = text(goal.label),
                .label = text(goal.label),
                .figures = figures(goal),
                .mark = reached ? "✓" : "",
                .fraction = std::clamp(goal.fraction, 0.0, 1.0),
                .color = toQColor(reached ? green : green.at(unfinishedOpacity))};
    row.accessibleText = row.label + ": " + row.figures + (reached ? ", cumplida" : "");
    return row;
}

std::vector<GoalStepper> stepperRows(const GoalSettings& settings) {
    std::vector<GoalStepper> rows;
    for (const auto& step : goalSteps()) {
        rows.push_back({.id = text(step.id),
                        .title = text(step.title),
                        .value = step.valueText(settings),
                        .number = step.shown(settings),
                        .min = step.min,
                        .max = step.max,
                        .step = step.step,
                        .canDecrease = step.shown(settings) > step.min,
                        .canIncrease = step.shown(settings) < step.max});
    }
    return rows;
}

}  // namespace

GoalsPresenter::GoalsPresenter(DashboardModel& model, const Sources& sources,
                               std::function<void()> exportReport)
    : DashboardTabPresenter(
          model,
          "Cuando lleves unos segundos trabajando, aquí crecerán tus estrellas y el progreso hacia "
          "tus metas. Las metas las fijas tú, más abajo."),
      sources_(sources),
      exportReport_(std::move(exportReport)),
      goalsChanged_(sources_.goals.changed.connect([this] {
          Q_EMIT settingsChanged();
          updateIfVisible();
      })) {}

void GoalsPresenter::update() {
    updateReward();
    std::vector<GoalRow> rows;
    for (const auto& goal : sources_.evaluator.evaluate()) rows.push_back(goalRow(goal));
    progress_.setRows(rows);
    steppers_.setRows(stepperRows(sources_.goals.settings()));
}

void GoalsPresenter::updateReward() {
    const int earned = std::clamp(sources_.rewards.starsToday(), 0, starCount);
    stars_ = starSymbols(earned);
    starColors_.clear();
    for (int star = 0; star < starCount; ++star) {
        starColors_.append(toQColor(DashboardStyle::amber.at(star < earned ? 1 : unfinishedOpacity)));
    }
    starsAccessibleText_ = starsText(earned);
    streak_ = QString::number(sources_.rewards.currentStreak()) + " días";
    monthStars_ = "★ " + QString::number(sources_.rewards.starsThisMonth());
    Q_EMIT rewardChanged();
}

void GoalsPresenter::increase(const QString& id) {
    step(id, 1);
}

void GoalsPresenter::decrease(const QString& id) {
    step(id, -1);
}

void GoalsPresenter::step(const QString& id, int direction) {
    const auto& steps = goalSteps();
    const auto found =
        std::find_if(steps.begin(), steps.end(), [&](const GoalStep& step) { return text(step.id) == id; });
    if (found != steps.end()) save(found->stepped(sources_.goals.settings(), direction));
}

void GoalsPresenter::setNotificationsEnabled(bool enabled) {
    auto settings = sources_.goals.settings();
    settings.notificationsEnabled = enabled;
    save(settings);
}

void GoalsPresenter::save(const GoalSettings& settings) {
    sources_.goals.setSettings(settings);
    sources_.goals.save();
}

void GoalsPresenter::exportReport() {
    exportReport_();
}

}  // namespace tidewatch
