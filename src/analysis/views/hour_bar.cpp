#include "analysis/views/hour_bar.h"

#include <algorithm>

#include "analysis/insights_engine.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

/// So that a quiet day's bars stay low.
constexpr Seconds minMaximum(600);
constexpr double minBarHeight = 0.04;

QString hourLabel(int hour) {
    const int onClock = hour % 12 == 0 ? 12 : hour % 12;
    return QString::number(onClock) + (hour < 12 ? "a" : "p");
}

}  // namespace

std::vector<HourBar> hourBars(const std::vector<HourSummary>& hours) {
    auto maximum = minMaximum;
    for (const auto& hour : hours) maximum = std::max(maximum, hour.seconds);
    std::vector<HourBar> bars;
    bars.reserve(hours.size());
    for (const auto& hour : hours) {
        bars.push_back(
            {.id = QString::number(hour.hour),
             .label = hourLabel(hour.hour),
             .height = std::max(minBarHeight, share(hour.seconds, maximum)),
             .productive = share(hour.productive, hour.seconds),
             .neutral = share(hour.neutral, hour.seconds),
             .distracting = share(hour.distracting, hour.seconds),
             .accessibleText = text(InsightsEngine::hourLabel(hour.hour)) + ", " + timeText(hour.seconds)});
    }
    return bars;
}

QString hourBarsAccessibleText(const std::vector<HourSummary>& hours) {
    QStringList parts;
    for (const auto& hour : hours) {
        if (hour.seconds < Seconds(1)) continue;
        parts.append(text(InsightsEngine::hourLabel(hour.hour)) + " " + timeText(hour.seconds));
    }
    return "Actividad por hora: " + (parts.isEmpty() ? "ninguna" : parts.join(", ")) + ".";
}

}  // namespace tidewatch
