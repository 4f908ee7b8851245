#include "platform/linux/linux_machine_counters.h"

#include <gmock/gmock.h>

#include <chrono>
#include <future>
#include <optional>
#include <thread>

#include "tests/platform/linux/recorded_machine.h"

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t kilobyte = 1024;

/// The counters of a recorded machine.
class LinuxMachineCountersTest : public testing::Test {
protected:
    LinuxMachineCounters& on(const std::string& name, const WirelessLinks::Ask& askWireless = nullptr) {
        machine_.emplace(name);
        if (askWireless) machine_->write("sys/class/net/wlp2s0/phy80211/name", "phy0\n");
        return counters_.emplace(machine_->proc(), machine_->sys(), askWireless);
    }
    // Once the driver of the radio has answered.
    PrimaryLink waitForLink() {
        std::optional<PrimaryLink> link;
        while (!(link = counters_->primaryLink())) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return *link;
    }

    std::optional<RecordedMachine> machine_;
    std::optional<LinuxMachineCounters> counters_;
};

TEST_F(LinuxMachineCountersTest, ADesktop) {
    auto& counters = on("desktop");
    const auto ticks = counters.cpuTicks().value();
    EXPECT_EQ(ticks.user, 846342);
    EXPECT_EQ(ticks.nice, 1893);
    EXPECT_EQ(ticks.system, 238871 + 21002);
    EXPECT_EQ(ticks.idle, 20143876 + 9932);

    const auto memory = counters.memory();
    EXPECT_EQ(memory.total, 32786412 * kilobyte);
    EXPECT_EQ(memory.usage->free, 4123004 * kilobyte);
    EXPECT_EQ(memory.usage->wired, 400000 * kilobyte);
    EXPECT_EQ(memory.usage->compressed, 0);
    EXPECT_EQ(memory.usage->active, (32786412 - 20011000 - 400000) * kilobyte);
    EXPECT_EQ(memory.swapUsed, 262144 * kilobyte);

    // Containers' bridges carry what the network card transfers.
    const auto bytes = counters.interfaceBytes().value();
    EXPECT_EQ(bytes.received, 8123456789);
    EXPECT_EQ(bytes.sent, 412345678);
    EXPECT_EQ(counters.primaryLink()->interfaceName, "enp5s0");
    EXPECT_FALSE(counters.primaryLink()->wireless);
    EXPECT_THAT(counters.gpuFigures(), ElementsAre(0.37));
}

TEST_F(LinuxMachineCountersTest, ALaptopOnAWirelessNetwork) {
    auto& counters = on("laptop");
    // The cable is out, and a tunnel runs over the radio.
    EXPECT_EQ(counters.interfaceBytes()->received, 123456789);
    EXPECT_EQ(counters.interfaceBytes()->sent, 2345678);
    EXPECT_EQ(counters.primaryLink()->interfaceName, "wlp2s0");
    const auto memory = counters.memory();
    EXPECT_EQ(memory.usage->compressed, 400000 * kilobyte);
    EXPECT_EQ(memory.usage->wired, 300000 * kilobyte);
    EXPECT_EQ(memory.usage->active, 4300000 * kilobyte);
    EXPECT_EQ(memory.swapUsed, 1500000 * kilobyte);
    EXPECT_THAT(counters.gpuFigures(), IsEmpty());
}

TEST_F(LinuxMachineCountersTest, AWirelessInterfaceTellsItsNetworkOnceItsDriverHasAnswered) {
    std::promise<void> permission;
    const auto permitted = permission.get_future().share();
    auto& counters = on("laptop", [permitted](const std::string& name) {
        permitted.wait();
        return std::optional(WirelessLink{.networkName = name + "-net", .signal = -61});
    });
    // A driver that takes its time keeps nobody waiting.
    EXPECT_FALSE(counters.primaryLink());
    EXPECT_FALSE(counters.primaryLink());
    permission.set_value();
    const auto link = waitForLink();
    EXPECT_EQ(link.interfaceName, "wlp2s0");
    ASSERT_TRUE(link.wireless);
    EXPECT_EQ(link.wireless->networkName, "wlp2s0-net");
    EXPECT_EQ(link.wireless->signal, -61);
}

TEST_F(LinuxMachineCountersTest, AWirelessInterfaceThatTellsNoNetworkIsALinkLikeAnyOther) {
    on("laptop", [](const std::string&) { return std::nullopt; });
    EXPECT_FALSE(waitForLink().wireless);
}

TEST_F(LinuxMachineCountersTest, AVirtualMachineWhoseHostTakesTimeAway) {
    auto& counters = on("virtual_machine");
    const auto ticks = counters.cpuTicks().value();
    EXPECT_EQ(ticks.user, 5000);
    EXPECT_EQ(ticks.system, 3030);
    EXPECT_EQ(ticks.idle, 60400);
    EXPECT_EQ(counters.interfaceBytes()->sent, 2000);
    // It has only an address of the newer kind.
    EXPECT_EQ(counters.primaryLink()->interfaceName, "ens3");
    EXPECT_EQ(counters.memory().swapUsed, 0);
}

TEST_F(LinuxMachineCountersTest, AContainerWithoutHardware) {
    auto& counters = on("container");
    EXPECT_EQ(counters.interfaceBytes()->received, 77000);
    EXPECT_EQ(counters.interfaceBytes()->sent, 99000);
    EXPECT_EQ(counters.primaryLink()->interfaceName, "eth0");
    // What it is not told counts as nothing.
    EXPECT_EQ(counters.memory().usage->wired, 0);
    EXPECT_EQ(counters.memory().usage->active, 200000 * kilobyte);
}

TEST_F(LinuxMachineCountersTest, CompressedMemoryDisks) {
    auto& counters = on("zram");
    constexpr std::uint64_t compressed = 614400000 + 102400;
    EXPECT_EQ(counters.memory().usage->compressed, compressed);
    EXPECT_EQ(counters.memory().usage->active, 2900000 * kilobyte - compressed);
    EXPECT_EQ(counters.memory().swapUsed, 2000000 * kilobyte);
    // A kernel with four columns only.
    EXPECT_EQ(counters.cpuTicks()->idle, 1);
    EXPECT_EQ(counters.interfaceBytes()->received, 0);
}

TEST_F(LinuxMachineCountersTest, ManyProcessorsAndCountersNearTheirLimits) {
    auto& counters = on("many_processors");
    const auto ticks = counters.cpuTicks().value();
    EXPECT_EQ(ticks.user, 4294967290);
    EXPECT_EQ(ticks.nice, 4294967295);
    EXPECT_EQ(ticks.system, 4294967295);
    EXPECT_EQ(ticks.idle, static_cast<std::uint32_t>(18446744073709551000u + 500));
    EXPECT_EQ(counters.interfaceBytes()->received, 2);
    EXPECT_EQ(counters.interfaceBytes()->sent, 2);
    EXPECT_EQ(counters.memory().total, 1056000000 * kilobyte);
    EXPECT_EQ(counters.memory().swapUsed, 18014398509481983 * kilobyte);
}

TEST_F(LinuxMachineCountersTest, ReadsWhatChangesMeanwhile) {
    auto& counters = on("desktop");
    EXPECT_EQ(counters.cpuTicks()->user, 846342);
    machine_->write("proc/stat", "cpu  1000000 0 0 30000000 0 0 0 0 0 0\nintr 1\n");
    EXPECT_EQ(counters.cpuTicks()->user, 1000000);
}

TEST_F(LinuxMachineCountersTest, IdleTimeThatGoesBackALittleStandsStill) {
    auto& counters = on("desktop");
    machine_->write("proc/stat", "cpu  1 0 0 1000 500\nintr 1\n");
    EXPECT_EQ(counters.cpuTicks()->idle, 1500);
    machine_->write("proc/stat", "cpu  1 0 0 1001 497\nintr 1\n");
    EXPECT_EQ(counters.cpuTicks()->idle, 1500);
    machine_->write("proc/stat", "cpu  1 0 0 1010 497\nintr 1\n");
    EXPECT_EQ(counters.cpuTicks()->idle, 1507);
}

TEST_F(LinuxMachineCountersTest, WithoutSourcesThereAreNoFigures) {
    const test::TemporaryDirectory empty;
    LinuxMachineCounters counters(empty.path() + "/proc", empty.path() + "/sys");
    EXPECT_FALSE(counters.cpuTicks());
    EXPECT_EQ(counters.memory().total, 0);
    EXPECT_FALSE(counters.memory().usage);
    EXPECT_FALSE(counters.memory().swapUsed);
    EXPECT_FALSE(counters.interfaceBytes());
    EXPECT_FALSE(counters.primaryLink());
    EXPECT_THAT(counters.gpuFigures(), IsEmpty());
    EXPECT_THAT(counters.busiestProcesses(8), IsEmpty());
}

TEST_F(LinuxMachineCountersTest, AGraphicsFigureIsAFraction) {
    auto& counters = on("desktop");
    const auto figuresFor = [&](const char* content) {
        machine_->write("sys/class/drm/card0/device/gpu_busy_percent", content);
        return counters.gpuFigures();
    };
    EXPECT_THAT(figuresFor("1\n"), ElementsAre(0.01));
    EXPECT_THAT(figuresFor("0\n"), ElementsAre(0));
    EXPECT_THAT(figuresFor("120\n"), ElementsAre(1));
    EXPECT_THAT(figuresFor("-3\n"), ElementsAre(0));
    EXPECT_THAT(figuresFor("busy\n"), IsEmpty());
    EXPECT_THAT(figuresFor(""), IsEmpty());
}

// Every beginning of every file, as if it had been cut off there.
TEST(ParseCpuTimes, TruncatedFilesGiveWholeFiguresOrNone) {
    const std::string stat = "cpu  1111 2222 3333 4444 5555 6666 7777 8888 0 0\nintr 1\n";
    for (std::size_t length = 0; length < stat.size(); ++length) {
        const auto times = parseCpuTimes(std::string_view(stat).substr(0, length));
        EXPECT_EQ(times.has_value(), length > stat.find('\n')) << length;
        if (times) {
            EXPECT_EQ(times->idle, 9999);
        }
    }
}

}  // namespace
}  // namespace tidewatch::platform
