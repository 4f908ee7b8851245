#include "analysis/views/insights_presenter.h"

#include <chrono>
#include <cmath>

#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr std::chrono::seconds refreshInterval(8);

QString hourOr(const std::optional<int>& hour, const QString& otherwise) {
    return hour ? text(InsightsEngine::hourLabel(*hour)) : otherwise;
}

}  // namespace

InsightsPresenter::InsightsPresenter(const InsightsEngine& engine, platform::MainLoop& mainLoop)
    : engine_(engine), mainLoop_(mainLoop) {
    tiles_.setRows(makeTiles());
}

InsightsPresenter::~InsightsPresenter() = default;

QStringList InsightsPresenter::ranges() const {
    QStringList labels;
    for (const auto range : allInsightsRanges()) labels.append(text(label(range)));
    return labels;
}

int InsightsPresenter::rangeIndex() const {
    const auto all = allInsightsRanges();
    return static_cast<int>(std::find(all.begin(), all.end(), range_) - all.begin());
}

QString InsightsPresenter::sessionLength() const {
    return hasSession() ? timeText(insights_.longest->seconds) : QString();
}

QString InsightsPresenter::sessionDay() const {
    return hasSession() ? text(engine_.shortDate(insights_.longest->start)) : QString();
}

QString InsightsPresenter::sessionTimes() const {
    if (!hasSession()) return {};
    return text(engine_.clockTime(insights_.longest->start)) + " – " +
           text(engine_.clockTime(insights_.longest->end));
}

QString InsightsPresenter::sessionAccessibleText() const {
    if (!hasSession()) return sessionTitle() + ": " + noSession();
    return sessionTitle() + ": " + QStringList{sessionLength(), sessionDay(), sessionTimes()}.join(", ");
}

void InsightsPresenter::selectRange(int index) {
    const auto all = allInsightsRanges();
    if (index < 0 || index >= static_cast<int>(all.size()) || all[static_cast<std::size_t>(index)] == range_)
        return;
    range_ = all[static_cast<std::size_t>(index)];
    Q_EMIT rangeChanged();
    compute();
}

void InsightsPresenter::setVisible(bool visible) {
    if (!visible) {
        timer_.reset();
        return;
    }
    compute();
    if (!timer_)
        timer_ = mainLoop_.repeat(refreshInterval, platform::TimerMode::common, [this] { compute(); });
}

void InsightsPresenter::compute() {
    const auto computed = engine_.compute(range_);
    const bool sameSession = computed.longest == insights_.longest;
    insights_ = computed;
    if (!sameSession) Q_EMIT sessionChanged();
    tiles_.setRows(makeTiles());
}

std::vector<StatTile> InsightsPresenter::makeTiles() const {
    const auto& found = insights_;
    const bool hasBestDay = found.bestDayKey && found.bestDaySeconds > Seconds();
    const auto constancy = QString::number(found.activeDays);
    return {
        {"peak", "bolt.fill", "HORA PICO", hourOr(found.peakHour, "—"), peakSubtitle()},
        {"total", "sum", "TOTAL", timeText(found.totalSeconds), totalSubtitle()},
        {"mean", "chart.bar.fill", "PROMEDIO / DÍA", timeText(found.avgPerActiveDay), "días con trabajo"},
        {"best", "trophy.fill", "MEJOR DÍA", timeText(found.bestDaySeconds),
         hasBestDay ? dateOf(found.bestDayKey) : "—"},
        {"score", "leaf.fill", "MEJOR PRODUCTIVIDAD",
         found.bestScoreDayKey ? percentText(found.bestScore) : "—", dateOf(found.bestScoreDayKey)},
        {"constancy", "calendar.badge.checkmark", "CONSTANCIA",
         found.rangeDays < 1 ? constancy : constancy + "/" + QString::number(found.rangeDays),
         "días activos"},
    };
}

QString InsightsPresenter::peakSubtitle() const {
    if (!insights_.avgPeakHour) return "hora más activa";
    return "prom. " + text(InsightsEngine::hourLabel(static_cast<int>(std::lround(*insights_.avgPeakHour))));
}

QString InsightsPresenter::totalSubtitle() const {
    if (const auto limit = days(range_)) return QString("últimos %1 días").arg(*limit);
    return insights_.firstDayKey ? "desde " + dateOf(insights_.firstDayKey) : "desde el inicio";
}

QString InsightsPresenter::dateOf(const std::optional<DayKey>& day) const {
    return day ? text(engine_.shortDate(*day)) : "—";
}

}  // namespace tidewatch
