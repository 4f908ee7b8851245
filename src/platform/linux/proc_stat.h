#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/api/machine_counters.h"

namespace tidewatch::platform {

/// The first line of /proc/stat, over all processors. Interrupts count as system time, waiting for devices as
/// idle time; time that a host took away is left out.
struct CpuTimes {
    std::uint64_t user = 0;
    std::uint64_t nice = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
};

/// Nullopt if `stat`, the content of /proc/stat, does not begin with that line.
[[nodiscard]] std::optional<CpuTimes> parseCpuTimes(std::string_view stat);

/// The lower 32 bits of each counter.
[[nodiscard]] CpuTicks cpuTicks(const CpuTimes& times);

}  // namespace tidewatch::platform
