#include "claude/views/claude_texts.h"

#include <fmt/format.h>

#include <algorithm>

#include "analysis/spanish_dates.h"
#include "shell/themes/dashboard_style.h"
#include "ui/style/qt_color.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

QString wholeDollars(double usd) {
    return text(fmt::format("${:.0f}", usd));
}

QString relativeTime(Instant since, Instant now) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now - since).count();
    if (seconds < 60) return text(fmt::format("hace {}s", seconds));
    return text(fmt::format("hace {}min", seconds / 60));
}

QColor efficiencyColor(double efficiency) {
    if (efficiency >= 0.7) return toQColor(DashboardStyle::tierProductive);
    return toQColor(efficiency >= 0.4 ? DashboardStyle::amber : DashboardStyle::tierDistracting);
}

QColor limitColor(double fraction) {
    if (fraction >= 0.9) return toQColor(DashboardStyle::tierDistracting);
    return toQColor(fraction >= 0.7 ? DashboardStyle::amber : DashboardStyle::tierNeutral);
}

QColor modelColor(std::string_view model) {
    if (model.find("opus") != std::string_view::npos) return toQColor(DashboardStyle::amber);
    const bool isSonnet = model.find("sonnet") != std::string_view::npos;
    return toQColor(isSonnet ? DashboardStyle::tierNeutral : DashboardStyle::tierProductive);
}

QString monthLabel(std::string_view key) {
    const bool hasForm = key.size() == 7 && key[4] == '-' && std::ranges::all_of(key.substr(0, 4), isDigit) &&
                         isDigit(key[5]) && isDigit(key[6]);
    const std::chrono::month month(hasForm ? static_cast<unsigned>((key[5] - '0') * 10 + (key[6] - '0')) : 0);
    if (!month.ok()) return text(key);
    auto name = text(spanish::abbreviation(month));
    name[0] = name[0].toUpper();
    return name + " " + text(key.substr(0, 4));
}

QString remainingTime(std::chrono::milliseconds left) {
    const auto seconds = std::max<std::int64_t>(left.count() / 1000, 0);
    if (seconds >= 3600) return text(fmt::format("{}h {}m", seconds / 3600, seconds % 3600 / 60));
    return text(fmt::format("{}m {}s", seconds / 60, seconds % 60));
}

QString endTimeLabel(Instant end, const platform::TimeZone& zone) {
    const auto local = civilTime(end, zone.utcOffset(end));
    return text(spanish::timeOfDay(local.hour, local.minute));
}

QString nextMondayLabel(Instant now) {
    const auto day = std::chrono::floor<std::chrono::days>(now);
    // At least a day, at most a week: the time of day stays the same.
    const auto daysToGo = std::chrono::days(7) - (std::chrono::weekday(day) - std::chrono::Monday);
    if (daysToGo >= std::chrono::days(2)) return text(fmt::format("reinicia en {}d", daysToGo.count()));
    return text(fmt::format("reinicia en {}h", std::chrono::hours(daysToGo).count()));
}

}  // namespace tidewatch
