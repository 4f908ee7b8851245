#include "base/duration_format.h"

#include <fmt/format.h>

namespace tidewatch {

std::string hms(Seconds duration) {
    const auto n = duration.count();
    return fmt::format("{:02}:{:02}:{:02}", n / 3600, n % 3600 / 60, n % 60);
}

std::string formatShort(Seconds duration) {
    const auto n = duration.count();
    if (n < 60) return fmt::format("{}s", n);
    if (n < 3600) return fmt::format("{}m {}s", n / 60, n % 60);
    return fmt::format("{}h {}m", n / 3600, n % 3600 / 60);
}

std::string hm(Seconds duration) {
    const auto n = duration.count();
    if (n < 3600) return fmt::format("{}m", n / 60);
    return fmt::format("{}h {}m", n / 3600, n % 3600 / 60);
}

std::string formatHM(Seconds duration) {
    if (duration < Seconds(60)) return fmt::format("{}s", duration.count());
    return hm(duration);
}

std::string formatPadded(Seconds duration) {
    const auto n = duration.count();
    if (n < 3600) return fmt::format("{}m {:02}s", n / 60, n % 60);
    return fmt::format("{}h {:02}m", n / 3600, n % 3600 / 60);
}

std::string compact(Seconds duration) {
    if (duration < Seconds(60)) return fmt::format("{}s", duration.count());
    return formatPadded(duration);
}

}  // namespace tidewatch
