#pragma once

#include <cstdint>

namespace tidewatch::platform {

/// The machine's random number source. Main thread only.
class Randomness {
public:
    virtual ~Randomness() = default;

    /// 64 independent, uniformly distributed, unpredictable bits.
    [[nodiscard]] virtual std::uint64_t bits() = 0;
};

}  // namespace tidewatch::platform
