#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/api/machine_counters.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// What the stat file of a process says.
struct ProcessStat {
    std::string_view name;         ///< cut off after 15 bytes; may hold blanks, parentheses and line feeds
    std::uint64_t cpuTicks = 0;    ///< of user and system time
    std::uint64_t startTicks = 0;  ///< since the machine started
    std::uint64_t residentPages = 0;
};

/// Nullopt if the text is not that of a stat file. The result refers to `text`.
[[nodiscard]] std::optional<ProcessStat> parseProcessStat(std::string_view text);

/// The whole name of a process whose short one may have been cut off, from its command line (arguments
/// separated by NUL) or else the path of its executable; the short one if neither continues it.
[[nodiscard]] std::string wholeProcessName(std::string_view shortName, std::string_view commandLine,
                                           std::string_view executable);

/// The name of a running process, as in ProcessLoad; empty if it has ended.
[[nodiscard]] std::string processName(int process);

/// Seconds since the machine started, from the content of /proc/uptime.
[[nodiscard]] std::optional<double> parseUptime(std::string_view text);

/// The processor time that a process has used, from the clock that the kernel has for it: a twentieth of the
/// cost of reading its stat file. Nullopt if there is no such process.
[[nodiscard]] std::optional<std::chrono::nanoseconds> processorTimeOf(int process);

/// The load of all processes, from /proc without any child process. Remembers the last list. Not thread-safe.
class ProcProcesses final {
public:
    using ProcessorTimeOf = std::function<std::optional<std::chrono::nanoseconds>(int process)>;

    /// Of a process without a `timeOf` its stat file tells the time.
    explicit ProcProcesses(const std::string& procDirectory, ProcessorTimeOf timeOf = processorTimeOf);

    /// See MachineCounters::busiestProcesses().
    [[nodiscard]] std::vector<ProcessLoad> busiest(std::size_t limit);

private:
    struct Process {
        int id = 0;
        std::uint64_t startTicks = 0;
        double cpuSeconds = 0;
        double cpuPercent = 0;
    };
    struct Moment {
        std::vector<Process> processes;  // by id
        double uptime = 0;               // seconds
    };

    [[nodiscard]] std::vector<int> ids() const;
    [[nodiscard]] std::optional<Process> measure(int id, double uptime) const;
    [[nodiscard]] std::optional<Process> measureByFile(int id, double uptime) const;
    [[nodiscard]] const Process* lastOf(int id) const;
    void rate(Process& process, const Process* last, double uptime) const;
    [[nodiscard]] std::optional<ProcessLoad> loadOf(const Process& process) const;

    const std::string directoryPath_;
    const ProcessorTimeOf timeOf_;
    const FileDescriptor directory_;
    const double ticksPerSecond_;
    const std::uint64_t pageSize_;
    Moment last_;
};

}  // namespace tidewatch::platform
