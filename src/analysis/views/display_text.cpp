#include "analysis/views/display_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/duration_format.h"

namespace tidewatch {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString timeText(Seconds seconds) {
    return text(formatHM(seconds));
}

double share(Seconds part, Seconds whole) {
    if (whole < Seconds(1)) return 0;
    return std::clamp(static_cast<double>(part.count()) / static_cast<double>(whole.count()), 0.0, 1.0);
}

QString shareText(Seconds part, Seconds whole) {
    if (whole < Seconds(1)) return "0%";
    return text(
        fmt::format("{:.0f}%", static_cast<double>(part.count()) / static_cast<double>(whole.count()) * 100));
}

QString percentText(double fraction) {
    return text(fmt::format("{}%", std::llround(fraction * 100)));
}

}  // namespace tidewatch
