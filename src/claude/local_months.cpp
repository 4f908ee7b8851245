#include "claude/local_months.h"

#include <fmt/format.h>

namespace tidewatch {

std::chrono::year_month LocalMonths::monthOf(std::chrono::sys_seconds date) {
    const auto day = std::chrono::floor<std::chrono::days>(date);
    if (day != lastDay_ || days_.empty()) {
        const auto [known, isNew] = days_.try_emplace(day.time_since_epoch().count());
        if (isNew) {
            const auto begin = computed(day);
            const auto end = computed(day + std::chrono::days(1) - std::chrono::seconds(1));
            known->second = {begin == end, begin};
        }
        lastDay_ = day;
        last_ = known->second;
    }
    return last_.isOfOneMonth ? last_.month : computed(date);
}

std::chrono::year_month LocalMonths::computed(std::chrono::sys_seconds date) const {
    const std::chrono::year_month_day day(
        std::chrono::floor<std::chrono::days>(date + zone_->utcOffset(Instant(date))));
    return day.year() / day.month();
}

std::string toMonthKey(std::chrono::year_month month) {
    return fmt::format("{:04}-{:02}", static_cast<int>(month.year()), static_cast<unsigned>(month.month()));
}

}  // namespace tidewatch
