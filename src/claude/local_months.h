#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

#include "platform/api/clock.h"

namespace tidewatch {

/// Months of local time, with a cache: fast for many instants of few days. Assumes that a day of UTC whose
/// first and last second are of one month is all of that month. Not thread-safe.
class LocalMonths final {
public:
    /// `zone` must not be null.
    explicit LocalMonths(std::shared_ptr<const platform::TimeZone> zone) : zone_(std::move(zone)) {}

    [[nodiscard]] std::chrono::year_month monthOf(std::chrono::sys_seconds date);

    [[nodiscard]] const platform::TimeZone& zone() const { return *zone_; }

private:
    struct Day {
        bool isOfOneMonth = false;
        std::chrono::year_month month;  // if it is
    };

    [[nodiscard]] std::chrono::year_month computed(std::chrono::sys_seconds date) const;

    std::shared_ptr<const platform::TimeZone> zone_;
    std::unordered_map<std::chrono::sys_days::rep, Day> days_;
    std::chrono::sys_days lastDay_;
    Day last_;
};

/// "2026-03".
[[nodiscard]] std::string toMonthKey(std::chrono::year_month month);

}  // namespace tidewatch
