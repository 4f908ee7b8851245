#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tidewatch::demo {

/// The project of a minute.
enum class Share { none, first, second };

/// One minute of activity.
struct WorkedMinute {
    std::chrono::minutes sinceMidnight;
    int seconds = 0;  ///< 1 to 60
    std::string_view app;
    Share share = Share::none;
};

/// A day's activity.
enum class Mood { good, usual, poor };

/// The plan of a day.
struct DayPlan {
    std::uint32_t seed = 0;
    Mood mood = Mood::usual;
    std::chrono::minutes start{0};   ///< since midnight
    std::chrono::minutes target{0};  ///< of work
    bool meeting = false;
    bool evening = false;  ///< games in the evening
};

/// The minutes of a day in ascending order, within that calendar day.
[[nodiscard]] std::vector<WorkedMinute> liveThrough(const DayPlan& plan);

}  // namespace tidewatch::demo
