#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace tidewatch::test {

/// Random numbers that are reproducible on every platform, unlike the standard distributions.
class Chance final {
public:
    explicit Chance(std::uint32_t seed) : generator_(seed) {}

    /// `low` to `high`, inclusive.
    [[nodiscard]] int between(int low, int high) {
        return low + static_cast<int>(generator_() % static_cast<std::uint32_t>(high - low + 1));
    }

    /// True with a probability of 1 in `n`.
    [[nodiscard]] bool onceIn(int n) { return between(1, n) == 1; }

    /// A random element of a non-empty sequence.
    template <class Sequence>
    [[nodiscard]] const auto& oneOf(const Sequence& sequence) {
        return sequence[static_cast<std::size_t>(between(0, static_cast<int>(std::size(sequence)) - 1))];
    }

private:
    std::mt19937 generator_;
};

}  // namespace tidewatch::test
