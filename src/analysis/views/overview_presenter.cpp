#include "analysis/views/overview_presenter.h"

#include <fmt/format.h>

#include "analysis/views/tier_color.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

QString TierColumnPresenter::title() const {
    return text(displayName(tier_));
}

QColor TierColumnPresenter::color() const {
    return tierColor(tier_);
}

void TierColumnPresenter::update(const DashboardModel& model) {
    apps_.setRows(appRows(model.apps(tier_)));
    time_ = timeText(model.seconds(tier_));
    Q_EMIT changed();
}

OverviewPresenter::OverviewPresenter(DashboardModel& model)
    : DashboardTabPresenter(
          model,
          "Cuando lleves unos segundos trabajando, aquí verás lo productivo que es tu día, con qué "
          "aplicaciones y a qué horas. Mañana lo verás comparado con hoy.") {
    updateScore();
}

QString OverviewPresenter::scoreAccessibleText() const {
    QStringList parts{score_, total_};
    if (!comparison_.isEmpty()) parts.append(comparison_);
    return scoreTitle() + ": " + parts.join(", ");
}

void OverviewPresenter::update() {
    productive_.update(model());
    neutral_.update(model());
    distracting_.update(model());
    updateScore();
    hours_.setRows(hourBars(model().hourSummaries()));
    change(this, hoursAccessibleText_, hourBarsAccessibleText(model().hourSummaries()),
           &OverviewPresenter::hoursChanged);
}

void OverviewPresenter::updateScore() {
    const auto& score = model().score();
    score_ = text(score.displayString());
    scoreFraction_ = score.isSignificant() ? score.score() : 0;
    scoreColor_ = toQColor(DashboardStyle::tierProductive);
    total_ = timeText(model().totalActiveToday());
    updateComparison();
    Q_EMIT scoreChanged();
}

void OverviewPresenter::updateComparison() {
    comparison_.clear();
    if (!model().score().isSignificant()) return;
    if (model().prevScore().isSignificant()) {
        compareWith(model().prevScore().score(), "ayer");
    } else if (model().avg7Score() > 0) {
        compareWith(model().avg7Score(), "prom 7d");
    }
}

void OverviewPresenter::compareWith(double reference, const QString& name) {
    const double points = (model().score().score() - reference) * 100;
    comparison_ = text(fmt::format("{}{:.0f}% vs ", points >= 0 ? "+" : "", points)) + name;
    comparisonColor_ = tierColor(reference > model().score().score() ? Tier::distracting : Tier::productive);
}

}  // namespace tidewatch
