#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "base/signal.h"
#include "platform/api/clock.h"
#include "platform/api/disk_volumes.h"
#include "platform/api/machine_counters.h"
#include "platform/api/main_loop.h"
#include "platform/api/randomness.h"
#include "system/system_snapshot.h"

namespace tidewatch {

/// Samples the machine at intervals while started. A source that fails leaves its last figures in place,
/// except that volumes, network type and graphics load are then empty. Main thread only.
class SystemMonitor final {
public:
    /// All of it must outlive the monitor.
    struct Dependencies {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        platform::MachineCounters& counters;
        platform::DiskVolumes& volumes;
        platform::Randomness& randomness;
    };

    static constexpr std::chrono::milliseconds defaultInterval{2000};

    /// Whether it lists processes. Only one running monitor should: each list is measured since the last one,
    /// whoever asked for that.
    enum class ProcessLists { none, sampled };

    explicit SystemMonitor(const Dependencies& dependencies, ProcessLists lists = ProcessLists::sampled);
    SystemMonitor(const SystemMonitor&) = delete;
    SystemMonitor& operator=(const SystemMonitor&) = delete;

    /// Emitted after each sample, and when the first volumes arrive.
    Signal<> changed;

    [[nodiscard]] const SystemSnapshot& snap() const { return snap_; }

    /// Samples at once, process lists included, then at each interval with the process lists every third
    /// time. Ignored while running.
    void start(std::chrono::milliseconds interval = defaultInterval);

    /// The first sample after a restart measures across the pause.
    void stop();

private:
    enum class Processes { keep, refresh };

    void tick();
    void sample(Processes processes);
    void readCpu(SystemSnapshot& snap);
    void readMemory(SystemSnapshot& snap);
    void readDisks(SystemSnapshot& snap);
    void readNetwork(SystemSnapshot& snap);
    void readLink(SystemSnapshot& snap);
    void readGpu(SystemSnapshot& snap);
    void readProcesses(SystemSnapshot& snap);
    void publish(SystemSnapshot snap);
    void showFirstDisks();
    [[nodiscard]] Uuid newId();

    Dependencies dependencies_;
    const ProcessLists lists_;
    SystemSnapshot snap_;
    std::optional<platform::CpuTicks> lastTicks_;
    platform::InterfaceBytes lastBytes_;
    std::optional<std::chrono::nanoseconds> lastBytesTime_;  // monotonic
    int ticks_ = 0;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    Connection volumesRefreshed_;
};

}  // namespace tidewatch
