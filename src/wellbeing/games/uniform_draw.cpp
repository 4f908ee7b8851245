#include "wellbeing/games/uniform_draw.h"

#include <limits>

namespace tidewatch {

int uniformBelow(int count, platform::Randomness& randomness) {
    const auto choices = static_cast<std::uint64_t>(count);
    // The highest values would favour the first choices.
    const auto end = std::numeric_limits<std::uint64_t>::max() / choices * choices;
    auto drawn = randomness.bits();
    while (drawn >= end) drawn = randomness.bits();
    return static_cast<int>(drawn % choices);
}

}  // namespace tidewatch
