#pragma once

#include <cstdint>

namespace tidewatch::platform {

/// The machine's source of chance. Main thread only.
class Randomness {
public:
    virtual ~Randomness() = default;

    /// 64 bits, each as likely to be set as not, and not to be foretold from earlier ones.
    [[nodiscard]] virtual std::uint64_t bits() = 0;
};

}  // namespace tidewatch::platform
