#pragma once

#include <cstdint>
#include <random>

namespace tidewatch::demo {

/// Chance that is the same everywhere for the same seed, unlike the standard distributions.
class Chance final {
public:
    explicit Chance(std::uint32_t seed) : generator_(seed) {}

    /// `low` to `high`, both included.
    [[nodiscard]] int between(int low, int high) {
        return low + static_cast<int>(generator_() % static_cast<std::uint32_t>(high - low + 1));
    }

    /// True in so many of a hundred cases.
    [[nodiscard]] bool percent(int likelihood) { return between(1, 100) <= likelihood; }

private:
    std::mt19937 generator_;
};

}  // namespace tidewatch::demo
