#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/api/machine_counters.h"

namespace tidewatch::platform {

/// The content of /proc/meminfo; `zram` is what compressed memory disks occupy, in bytes. Wired is what the
/// kernel cannot give back; active is what else is not available, so that all three together are what is not
/// available. Usage and swap are nullopt if a figure that they need is missing; the total is then 0 or what
/// is told.
[[nodiscard]] MemoryReading parseMemory(std::string_view meminfo, std::uint64_t zram);

/// The memory that a zram device occupies, in bytes, from its mm_stat file.
[[nodiscard]] std::optional<std::uint64_t> parseZramMemory(std::string_view mmStat);

}  // namespace tidewatch::platform
