#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace tidewatch::test {

/// Chance that is the same everywhere for the same seed, unlike the standard distributions.
class Chance final {
public:
    explicit Chance(std::uint32_t seed) : generator_(seed) {}

    /// `low` to `high`, both included.
    [[nodiscard]] int between(int low, int high) {
        return low + static_cast<int>(generator_() % static_cast<std::uint32_t>(high - low + 1));
    }

    /// True once in `n` times.
    [[nodiscard]] bool onceIn(int n) { return between(1, n) == 1; }

    /// One of the elements; the sequence is not empty.
    template <class Sequence>
    [[nodiscard]] const auto& oneOf(const Sequence& sequence) {
        return sequence[static_cast<std::size_t>(between(0, static_cast<int>(std::size(sequence)) - 1))];
    }

private:
    std::mt19937 generator_;
};

}  // namespace tidewatch::test
