#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/uuid.h"

namespace tidewatch {

/// A row of a process list.
struct SysProc {
    Uuid id{};  ///< new in each list
    std::string name{};
    double value = 0;  ///< percent of one core, or mebibytes of memory
};

struct DiskVolume {
    Uuid id{};  ///< new in each sample
    std::string name{};
    std::string path{};  ///< mount point, absolute; stays the same while it is mounted
    std::int64_t totalBytes = 0;
    std::int64_t freeBytes = 0;
    bool isInternal = true;

    /// Never negative.
    [[nodiscard]] std::int64_t usedBytes() const;
    /// 0 for a volume without a capacity.
    [[nodiscard]] double usedFraction() const;
};

/// What the network type is called while there is no network.
inline constexpr char noNetwork[] = "—";

/// The state of the machine at one moment. Sizes in bytes, fractions from 0 to 1.
struct SystemSnapshot {
    double cpuTotal = 0;
    double cpuUser = 0;
    double cpuSystem = 0;
    std::vector<SysProc> topCpu;  ///< at most eight, in percent of one core
    std::uint64_t ramUsed = 0;    ///< at most `ramTotal`
    std::uint64_t ramTotal = 0;
    std::uint64_t ramWired = 0;
    std::uint64_t ramActive = 0;
    std::uint64_t ramCompressed = 0;
    std::vector<SysProc> topRam;    ///< the processes of `topCpu`, in mebibytes
    std::vector<DiskVolume> disks;  ///< the largest first
    double netDownBps = 0;          ///< bytes per second
    double netUpBps = 0;
    std::string netType = noNetwork;  ///< "Wi-Fi", "Ethernet" or noNetwork
    std::optional<std::string> netSsid;
    std::optional<std::int64_t> netRssi;  ///< dBm
    std::optional<double> gpuUsage;       ///< nullopt if no graphics processor tells it
    std::uint64_t swapUsed = 0;
    std::uint64_t ramFree = 0;

    /// 0 while the total is unknown.
    [[nodiscard]] double ramUsedFraction() const;
};

}  // namespace tidewatch
