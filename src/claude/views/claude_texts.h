#pragma once

#include <QColor>
#include <QString>
#include <chrono>
#include <string_view>

#include "base/instant.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// "$12"
[[nodiscard]] QString wholeDollars(double usd);

/// "hace 59s" below a minute, "hace 2min" from there on. Seconds are truncated.
[[nodiscard]] QString relativeTime(Instant since, Instant now);

/// Of how much of a plan is used: the more, the better. Green from 0.7, amber from 0.4.
[[nodiscard]] QColor efficiencyColor(double efficiency);

/// Of how much of a limit is used: the more, the worse. Red from 0.9, amber from 0.7.
[[nodiscard]] QColor limitColor(double fraction);

/// The colour of a model's family, by its name as logged.
[[nodiscard]] QColor modelColor(std::string_view model);

/// "Mar 2026" of "2026-03"; the key itself if it is none.
[[nodiscard]] QString monthLabel(std::string_view key);

/// "1h 30m" from an hour on, "59m 10s" below. Truncated to seconds; at least "0m 0s".
[[nodiscard]] QString remainingTime(std::chrono::milliseconds left);

/// "4:05 pm" by local time.
[[nodiscard]] QString endTimeLabel(Instant end, const platform::TimeZone& zone);

/// When the week of UTC begins anew: "reinicia en 3d", "reinicia en 24h".
[[nodiscard]] QString nextMondayLabel(Instant now);

}  // namespace tidewatch
