#pragma once

#include <cstdint>
#include <random>

#include "platform/api/randomness.h"

namespace tidewatch::platform {

/// A deterministic random source.
class FakeRandomness final : public Randomness {
public:
    explicit FakeRandomness(std::uint64_t seed = 1) : generator_(seed) {}

    [[nodiscard]] std::uint64_t bits() override { return generator_(); }

private:
    std::mt19937_64 generator_;
};

}  // namespace tidewatch::platform
