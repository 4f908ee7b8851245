#pragma once

#include <string>

#include "platform/api/machine_counters.h"
#include "platform/linux/kernel_file.h"
#include "platform/linux/proc_processes.h"
#include "platform/linux/proc_stat.h"

namespace tidewatch::platform {

/// The kernel's counters in /proc and /sys.
class LinuxMachineCounters final : public MachineCounters {
public:
    LinuxMachineCounters();

    /// For tests: of another machine, whose processes are not here.
    LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory);

    [[nodiscard]] std::optional<CpuTicks> cpuTicks() override;
    [[nodiscard]] MemoryReading memory() override;
    [[nodiscard]] std::optional<InterfaceBytes> interfaceBytes() override;

    /// Without the network of a wireless interface, which the kernel tells elsewhere.
    [[nodiscard]] std::optional<PrimaryLink> primaryLink() override;

    /// Of drivers that tell it in /sys.
    [[nodiscard]] std::vector<double> gpuFigures() override;

    [[nodiscard]] std::vector<ProcessLoad> busiestProcesses(std::size_t limit) override;

private:
    LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory,
                         ProcProcesses::ProcessorTimeOf timeOf);
    [[nodiscard]] std::uint64_t zramMemory() const;

    const std::string sysDirectory_;
    KernelFile stat_;
    KernelFile meminfo_;
    KernelFile netDev_;
    KernelFile routes_;
    KernelFile routes6_;
    ProcProcesses processes_;
    CpuTimes lastTimes_;
};

}  // namespace tidewatch::platform
