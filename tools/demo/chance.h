#pragma once

#include <cstdint>
#include <random>

namespace tidewatch::demo {

/// Random numbers that are reproducible on every platform, unlike the standard distributions.
class Chance final {
public:
    explicit Chance(std::uint32_t seed) : generator_(seed) {}

    /// `low` to `high`, inclusive.
    [[nodiscard]] int between(int low, int high) {
        return low + static_cast<int>(generator_() % static_cast<std::uint32_t>(high - low + 1));
    }

    /// True with this probability in per cent.
    [[nodiscard]] bool percent(int likelihood) { return between(1, 100) <= likelihood; }

private:
    std::mt19937 generator_;
};

}  // namespace tidewatch::demo
