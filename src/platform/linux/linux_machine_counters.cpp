#include "platform/linux/linux_machine_counters.h"

#include <unistd.h>

#include <memory>
#include <utility>

#include "platform/linux/net_interfaces.h"
#include "platform/linux/nl80211.h"
#include "platform/linux/nvml.h"
#include "platform/linux/proc_meminfo.h"

namespace tidewatch::platform {

namespace {

WirelessLinks::Ask kernel() {
    return [subsystem = std::make_shared<Nl80211>()](const std::string& interfaceName) {
        return subsystem->link(interfaceName);
    };
}

GpuFigures::AskLibrary managementLibrary() {
    return [library = std::make_shared<Nvml>()] { return library->utilization(); };
}

}  // namespace

LinuxMachineCounters::LinuxMachineCounters()
    : LinuxMachineCounters("/proc", "/sys", processorTimeOf, kernel()) {}

LinuxMachineCounters::LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory,
                                           WirelessLinks::Ask askWireless)
    : LinuxMachineCounters(procDirectory, sysDirectory, nullptr, std::move(askWireless)) {}

LinuxMachineCounters::LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory,
                                           ProcProcesses::ProcessorTimeOf timeOf,
                                           WirelessLinks::Ask askWireless)
    : sysDirectory_(sysDirectory),
      stat_(procDirectory + "/stat"),
      meminfo_(procDirectory + "/meminfo"),
      netDev_(procDirectory + "/net/dev"),
      routes_(procDirectory + "/net/route"),
      routes6_(procDirectory + "/net/ipv6_route"),
      processes_(procDirectory, std::move(timeOf)),
      wirelessLinks_(std::move(askWireless)),
      gpus_(sysDirectory, managementLibrary()) {}

std::optional<CpuTicks> LinuxMachineCounters::cpuTicks() {
    const auto text = stat_.read();
    auto times = text ? parseCpuTimes(*text) : std::nullopt;
    if (!times) return std::nullopt;
    // The kernel's count of waiting may go back a little, which would look like a counter that wrapped
    // around.
    constexpr std::uint64_t little = 100'000;
    if (lastTimes_.idle > times->idle && lastTimes_.idle - times->idle < little)
        times->idle = lastTimes_.idle;
    lastTimes_ = *times;
    return platform::cpuTicks(*times);
}

MemoryReading LinuxMachineCounters::memory() {
    const auto text = meminfo_.read();
    return text ? parseMemory(*text, zramMemory()) : MemoryReading();
}

std::uint64_t LinuxMachineCounters::zramMemory() const {
    std::uint64_t sum = 0;
    const auto devices = sysDirectory_ + "/block";
    for (const auto& name : namesIn(devices, "zram")) {
        const auto text = readKernelFile(devices + "/" + name + "/mm_stat");
        if (text) sum += parseZramMemory(*text).value_or(0);
    }
    return sum;
}

std::optional<InterfaceBytes> LinuxMachineCounters::interfaceBytes() {
    const auto text = netDev_.read();
    if (!text) return std::nullopt;
    return totalBytes(*text, sysDirectory_ + "/class/net");
}

std::optional<PrimaryLink> LinuxMachineCounters::primaryLink() {
    const auto routes = routes_.read();
    auto name = routes ? defaultInterface(*routes) : std::nullopt;
    if (!name) {
        const auto routes6 = routes6_.read();
        name = routes6 ? defaultInterface6(*routes6) : std::nullopt;
    }
    if (!name) return std::nullopt;
    if (!isWireless(*name)) return PrimaryLink{*name, std::nullopt};
    const auto wireless = wirelessLinks_.latest(*name);
    return wireless ? std::optional(PrimaryLink{*name, *wireless}) : std::nullopt;
}

bool LinuxMachineCounters::isWireless(const std::string& interfaceName) const {
    return ::access((sysDirectory_ + "/class/net/" + interfaceName + "/phy80211").c_str(), F_OK) == 0;
}

std::vector<double> LinuxMachineCounters::gpuFigures() {
    return gpus_.read();
}

std::vector<ProcessLoad> LinuxMachineCounters::busiestProcesses(std::size_t limit) {
    return processes_.busiest(limit);
}

}  // namespace tidewatch::platform
