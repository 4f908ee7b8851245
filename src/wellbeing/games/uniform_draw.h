#pragma once

#include <cstdint>

#include "platform/api/randomness.h"

namespace tidewatch {

/// A number from 0 to `count` - 1, all equally likely. `count` is 1 or more.
[[nodiscard]] int uniformBelow(int count, platform::Randomness& randomness);

}  // namespace tidewatch
