#pragma once

#include <random>

#include "platform/api/randomness.h"

namespace tidewatch::platform {

/// The kernel's random numbers.
class SystemRandomness final : public Randomness {
public:
    [[nodiscard]] std::uint64_t bits() override { return std::uint64_t{device_()} << 32 | device_(); }

private:
    std::random_device device_;
};

}  // namespace tidewatch::platform
