#include "platform/linux/linux_machine_counters.h"

#include <algorithm>
#include <utility>

#include "platform/linux/net_interfaces.h"
#include "platform/linux/proc_meminfo.h"
#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

LinuxMachineCounters::LinuxMachineCounters() : LinuxMachineCounters("/proc", "/sys", processorTimeOf) {}

LinuxMachineCounters::LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory)
    : LinuxMachineCounters(procDirectory, sysDirectory, nullptr) {}

LinuxMachineCounters::LinuxMachineCounters(const std::string& procDirectory, const std::string& sysDirectory,
                                           ProcProcesses::ProcessorTimeOf timeOf)
    : sysDirectory_(sysDirectory),
      stat_(procDirectory + "/stat"),
      meminfo_(procDirectory + "/meminfo"),
      netDev_(procDirectory + "/net/dev"),
      routes_(procDirectory + "/net/route"),
      routes6_(procDirectory + "/net/ipv6_route"),
      processes_(procDirectory, std::move(timeOf)) {}

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
    return PrimaryLink{*name, std::nullopt};
}

std::vector<double> LinuxMachineCounters::gpuFigures() {
    std::vector<double> figures;
    const auto cards = sysDirectory_ + "/class/drm";
    for (const auto& name : namesIn(cards, "card")) {
        // A connector's name has a dash.
        if (name.find('-') != std::string::npos) continue;
        const auto text = readKernelFile(cards + "/" + name + "/device/gpu_busy_percent");
        if (!text) continue;
        const auto percent = wholeNumber<int>(std::string_view(*text).substr(0, text->find('\n')));
        // As a fraction: one percent would be taken for all of it.
        if (percent) figures.push_back(std::clamp(*percent / 100.0, 0.0, 1.0));
    }
    return figures;
}

std::vector<ProcessLoad> LinuxMachineCounters::busiestProcesses(std::size_t limit) {
    return processes_.busiest(limit);
}

}  // namespace tidewatch::platform
