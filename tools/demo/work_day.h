#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tidewatch::demo {

/// Which of the projects a minute belongs to.
enum class Share { none, first, second };

/// One minute at the machine.
struct WorkedMinute {
    std::chrono::minutes sinceMidnight;
    int seconds = 0;  ///< 1 to 60
    std::string_view app;
    Share share = Share::none;
};

/// How a day went.
enum class Mood { good, usual, poor };

/// What a day is like before it begins.
struct DayPlan {
    std::uint32_t seed = 0;
    Mood mood = Mood::usual;
    std::chrono::minutes start{0};   ///< since midnight
    std::chrono::minutes target{0};  ///< of work
    bool meeting = false;
    bool evening = false;  ///< some play after supper
};

/// The minutes of a day in ascending order, from one midnight to the next at most.
[[nodiscard]] std::vector<WorkedMinute> liveThrough(const DayPlan& plan);

}  // namespace tidewatch::demo
