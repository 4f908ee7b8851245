#pragma once

#include <algorithm>
#include <utility>

#include "platform/api/machine_counters.h"

namespace tidewatch::platform {

/// Figures that the test sets. Counts the readings of the process list.
class FakeMachineCounters final : public MachineCounters {
public:
    [[nodiscard]] std::optional<CpuTicks> cpuTicks() override { return cpu; }
    [[nodiscard]] MemoryReading memory() override { return memoryReading; }
    [[nodiscard]] std::optional<InterfaceBytes> interfaceBytes() override { return traffic; }
    [[nodiscard]] std::optional<PrimaryLink> primaryLink() override { return link; }
    [[nodiscard]] std::vector<double> gpuFigures() override { return gpus; }
    [[nodiscard]] std::vector<ProcessLoad> busiestProcesses(std::size_t limit) override {
        ++processReadings;
        auto busiest = processes;
        busiest.resize(std::min(limit, busiest.size()));
        return busiest;
    }

    std::optional<CpuTicks> cpu;
    MemoryReading memoryReading;
    std::optional<InterfaceBytes> traffic;
    std::optional<PrimaryLink> link;
    std::vector<double> gpus;
    std::vector<ProcessLoad> processes;  ///< the busiest first
    int processReadings = 0;
};

}  // namespace tidewatch::platform
