#pragma once

#include <string>

#include "platform/api/machine_counters.h"
#include "platform/linux/gpu_figures.h"
#include "platform/linux/kernel_file.h"
#include "platform/linux/proc_processes.h"
#include "platform/linux/proc_stat.h"
#include "platform/linux/wireless_links.h"

namespace tidewatch::platform {

/// The kernel's counters in /proc and /sys.
class LinuxMachineCounters final : public MachineCounters {
public:
    LinuxMachineCounters();

    /// For tests: of another machine, whose processes are not here; `askWireless` plays its radio drivers.
    LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory,
                         WirelessLinks::Ask askWireless = nullptr);

    [[nodiscard]] std::optional<CpuTicks> cpuTicks() override;
    [[nodiscard]] MemoryReading memory() override;
    [[nodiscard]] std::optional<InterfaceBytes> interfaceBytes() override;

    /// Also nullopt while the driver of a wireless interface has not answered for the first time.
    [[nodiscard]] std::optional<PrimaryLink> primaryLink() override;

    [[nodiscard]] std::vector<double> gpuFigures() override;

    [[nodiscard]] std::vector<ProcessLoad> busiestProcesses(std::size_t limit) override;

private:
    LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory,
                         ProcProcesses::ProcessorTimeOf timeOf, WirelessLinks::Ask askWireless);
    [[nodiscard]] std::uint64_t zramMemory() const;
    [[nodiscard]] bool isWireless(const std::string& interfaceName) const;

    const std::string sysDirectory_;
    KernelFile stat_;
    KernelFile meminfo_;
    KernelFile netDev_;
    KernelFile routes_;
    KernelFile routes6_;
    ProcProcesses processes_;
    WirelessLinks wirelessLinks_;
    GpuFigures gpus_;
    CpuTimes lastTimes_;
};

}  // namespace tidewatch::platform
