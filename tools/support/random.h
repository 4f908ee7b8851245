#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace tidewatch {

/// Random numbers that are reproducible on every platform, unlike the standard distributions. For tests,
/// benchmarks and the demo.
class Random final {
public:
    explicit Random(std::uint32_t seed) : generator_(seed) {}

    /// `min` to `max`, inclusive.
    [[nodiscard]] int between(int min, int max) {
        return min + static_cast<int>(generator_() % static_cast<std::uint32_t>(max - min + 1));
    }

    /// True with a probability of 1 in `n`.
    [[nodiscard]] bool onceIn(int n) { return between(1, n) == 1; }

    /// True with this probability in per cent.
    [[nodiscard]] bool percent(int probability) { return between(1, 100) <= probability; }

    /// A random element of a non-empty sequence.
    template <class Sequence>
    [[nodiscard]] const auto& oneOf(const Sequence& sequence) {
        return sequence[static_cast<std::size_t>(between(0, static_cast<int>(std::size(sequence)) - 1))];
    }

private:
    std::mt19937 generator_;
};

}  // namespace tidewatch
