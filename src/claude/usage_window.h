#pragma once

#include <chrono>
#include <compare>

namespace tidewatch {

/// One of the five fixed windows of a day of UTC: they begin at 0, 5, 10, 15 and 20 o'clock, so the last one
/// has four hours.
struct UsageWindow {
    static constexpr int perDay = 5;

    std::chrono::sys_days day;
    int slot = 0;  ///< 0 to 4
    auto operator<=>(const UsageWindow&) const = default;

    [[nodiscard]] static UsageWindow of(std::chrono::sys_seconds date) {
        const auto day = std::chrono::floor<std::chrono::days>(date);
        return {day, static_cast<int>((date - day) / std::chrono::hours(5))};
    }
};

}  // namespace tidewatch
