// The readers on this machine, next to what its own tools say at the same time.

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <sstream>

#include "platform/linux/linux_disk_volumes.h"
#include "platform/linux/linux_machine_counters.h"
#include "platform/linux/mount_table.h"
#include "platform/linux/net_interfaces.h"

namespace tidewatch::platform {
namespace {

std::string outputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
    std::string output;
    std::array<char, 4096> buffer{};
    while (const auto length = ::fread(buffer.data(), 1, buffer.size(), pipe.get()))
        output.append(buffer.data(), length);
    return output;
}

// The words of the first line that begins with `start`, with it.
std::vector<std::string> wordsOf(const std::string& output, const std::string& start) {
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::vector<std::string> found;
        for (std::string word; words >> word;) found.push_back(word);
        if (!found.empty() && found[0] == start) return found;
    }
    ADD_FAILURE() << "no " << start << " in " << output;
    return std::vector<std::string>(16, "0");
}

double number(const std::string& word) {
    return std::stod(word);
}

TEST(MachineTools, FreeTellsTheSameMemoryAndSwap) {
    LinuxMachineCounters counters;
    const auto reading = counters.memory();
    const auto output = outputOf("LC_ALL=C free --bytes");
    const auto memory = wordsOf(output, "Mem:");
    const auto swap = wordsOf(output, "Swap:");
    EXPECT_EQ(static_cast<double>(reading.total), number(memory[1]));
    ASSERT_TRUE(reading.usage);
    // What others may allocate or free between the two.
    const auto tolerance = 0.05 * static_cast<double>(reading.total);
    EXPECT_NEAR(static_cast<double>(reading.usage->free), number(memory[3]), tolerance);
    const auto used = reading.usage->active + reading.usage->wired + reading.usage->compressed;
    EXPECT_NEAR(static_cast<double>(used), number(memory[1]) - number(memory[6]), tolerance);
    EXPECT_NEAR(static_cast<double>(reading.swapUsed.value()), number(swap[2]), tolerance);
}

TEST(MachineTools, DfTellsTheSameSizes) {
    const auto directory = std::string("/tmp");
    const auto size = LinuxDiskVolumes::askForSize(directory).value();
    const auto output = outputOf("LC_ALL=C df --block-size=1 --output=target,size,avail " + directory);
    std::istringstream lines(output);
    std::string heading, target;
    double total = 0, available = 0;
    std::getline(lines, heading);
    lines >> target >> total >> available;
    EXPECT_EQ(static_cast<double>(size.total), total);
    EXPECT_NEAR(static_cast<double>(size.free), available, 0.05 * total);
}

TEST(KernelFileTest, TheMountTableAnnouncesItsChangesAndOtherFilesMayChangeAnyTime) {
    KernelFile mountTable("/proc/self/mountinfo");
    EXPECT_TRUE(mountTable.mayHaveChanged());
    EXPECT_TRUE(mountTable.read());
    // Others may mount something meanwhile, but not every time.
    bool isQuiet = false;
    for (int attempt = 0; attempt < 100 && !isQuiet; ++attempt) isQuiet = !mountTable.mayHaveChanged();
    EXPECT_TRUE(isQuiet);
    KernelFile statistics("/proc/self/stat");
    EXPECT_TRUE(statistics.read());
    EXPECT_TRUE(statistics.mayHaveChanged());
}

TEST(MachineTools, PsTellsTheSameOfThisProcess) {
    LinuxMachineCounters counters;
    const auto loads = counters.busiestProcesses(100'000);
    const auto own = std::ranges::find(loads, "machine_counters_test", &ProcessLoad::name);
    ASSERT_NE(own, loads.end());
    const auto resident = 1024 * number(outputOf("ps -o rss= -p " + std::to_string(::getpid())));
    // The kernel counts in batches of pages for each thread.
    EXPECT_NEAR(static_cast<double>(own->resident), resident, 0.5 * resident);
    const auto count = number(outputOf("ps -e --no-headers | wc -l"));
    EXPECT_NEAR(static_cast<double>(loads.size()), count, 0.2 * count + 20);
    EXPECT_TRUE(std::ranges::is_sorted(loads, std::ranges::greater(), &ProcessLoad::cpuPercent));
}

TEST(MachineTools, IpTellsTheSameDefaultInterface) {
    LinuxMachineCounters counters;
    const auto routes = outputOf("ip -4 -oneline route show default; ip -6 -oneline route show default");
    const auto link = counters.primaryLink();
    EXPECT_EQ(link.has_value(), !routes.empty()) << routes;
    if (link) {
        EXPECT_NE(routes.find("dev " + link->interfaceName + " "), std::string::npos) << routes;
    }
}

TEST(MachineTools, IpTellsTheSameTraffic) {
    const auto receivedBy = [](const std::string& name) {
        const auto output = outputOf("ip -oneline -statistics link show dev " + name);
        std::istringstream words(output.substr(std::min(output.find("RX:"), output.size())));
        for (std::string word; words >> word;) {
            if (std::isdigit(static_cast<unsigned char>(word[0]))) return number(word);
        }
        return -1.0;
    };
    KernelFile netDev("/proc/net/dev");
    const auto names = parseNetDev(netDev.read().value());
    ASSERT_FALSE(names.empty());
    for (const auto& [name, ignored] : names) {
        const auto before = receivedBy(name);
        const auto interfaces = parseNetDev(netDev.read().value());
        const auto after = receivedBy(name);
        const auto same = std::ranges::find(interfaces, name, &NetInterface::name);
        ASSERT_NE(same, interfaces.end());
        EXPECT_GE(static_cast<double>(same->bytes.received), before) << name;
        EXPECT_LE(static_cast<double>(same->bytes.received), after) << name;
    }
}

}  // namespace
}  // namespace tidewatch::platform
