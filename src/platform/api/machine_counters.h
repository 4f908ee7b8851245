#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tidewatch::platform {

/// Time that all processors together have spent since the machine started, in ticks of equal length. The
/// counters wrap around at 2^32.
struct CpuTicks {
    std::uint32_t user = 0;  ///< without `nice`
    std::uint32_t system = 0;
    std::uint32_t idle = 0;
    std::uint32_t nice = 0;  ///< of processes with a lowered priority
};

/// What physical memory is used for, in bytes.
struct MemoryUsage {
    std::uint64_t free = 0;
    std::uint64_t active = 0;
    std::uint64_t wired = 0;       ///< cannot be given back
    std::uint64_t compressed = 0;  ///< holds compressed pages
};

struct MemoryReading {
    std::uint64_t total = 0;             ///< physical memory in bytes; 0 if unknown
    std::optional<MemoryUsage> usage{};  ///< nullopt if it cannot be read
    std::optional<std::uint64_t> swapUsed{};
};

/// Bytes that the network interfaces that are up have transferred so far, without the loopback.
struct InterfaceBytes {
    std::uint64_t received = 0;
    std::uint64_t sent = 0;
};

/// A wireless network that an interface is connected to.
struct WirelessLink {
    std::string networkName;
    std::optional<std::int64_t> signal{};  ///< dBm; nullopt if the driver does not tell
};

/// The interface of the default route.
struct PrimaryLink {
    std::string interfaceName;
    std::optional<WirelessLink> wireless;  ///< nullopt if it is not wireless or does not tell its network
};

struct ProcessLoad {
    std::string name;            ///< of the executable, whole; never empty
    double cpuPercent = 0;       ///< of one core, so that it may exceed 100
    std::uint64_t resident = 0;  ///< bytes
};

/// The machine's load and traffic. Reads what the system has at hand: no operation blocks. A source that is
/// missing or unreadable gives nullopt, or nothing in a list. Main thread only.
class MachineCounters {
public:
    virtual ~MachineCounters() = default;

    [[nodiscard]] virtual std::optional<CpuTicks> cpuTicks() = 0;
    [[nodiscard]] virtual MemoryReading memory() = 0;
    [[nodiscard]] virtual std::optional<InterfaceBytes> interfaceBytes() = 0;

    /// Nullopt without a default route.
    [[nodiscard]] virtual std::optional<PrimaryLink> primaryLink() = 0;

    /// The utilisation of each graphics processor that tells it: a fraction up to 1, or a percentage above 1.
    [[nodiscard]] virtual std::vector<double> gpuFigures() = 0;

    /// At most `limit` processes, the busiest first: since the last call, or since the start of a process
    /// that was not there then.
    [[nodiscard]] virtual std::vector<ProcessLoad> busiestProcesses(std::size_t limit) = 0;
};

}  // namespace tidewatch::platform
