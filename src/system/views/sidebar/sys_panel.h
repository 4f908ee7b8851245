#pragma once

namespace tidewatch {

/// The panels of the sidebar.
enum class SysPanel { overview, disk, memory, cpu, network, devices };

}  // namespace tidewatch
