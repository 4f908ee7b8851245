#include <cmath>
#include <limits>

#include "tests/system/system_monitor_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

TEST_F(SystemMonitorTest, WithAllInterfaceCountersAtZeroTheRatesStay) {
    counters.traffic = {.received = 1000, .sent = 500};
    monitor->start();
    counters.traffic = {.received = 3000, .sent = 700};
    sample();
    counters.traffic = platform::InterfaceBytes();
    sample();  // compared with the 3000 before, which wraps around
    const auto down = snap().netDownBps;
    const auto up = snap().netUpBps;
    sample();
    EXPECT_EQ(snap().netDownBps, down);
    EXPECT_EQ(snap().netUpBps, up);
    counters.traffic = {.received = 10};
    sample();
    EXPECT_EQ(snap().netDownBps, down);
    counters.traffic = {.received = 30};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 10);
    EXPECT_EQ(snap().netUpBps, 0);
}

TEST_F(SystemMonitorTest, AnInterfaceThatGoesAwayShowsOneEnormousSample) {
    counters.traffic = {.received = 3000, .sent = 700};
    monitor->start();
    counters.traffic = {.received = 1000, .sent = 700};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, (std::ldexp(1, 64) - 2000) / 2);
    EXPECT_EQ(snap().netUpBps, 0);
    counters.traffic = {.received = 1200, .sent = 700};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 100);
}

TEST_F(SystemMonitorTest, UnreadableInterfacesCountAsZero) {
    counters.traffic = {.received = std::numeric_limits<std::uint64_t>::max() - 1, .sent = 1};
    monitor->start();
    counters.traffic.reset();
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 1);
}

TEST_F(SystemMonitorTest, RatesAreOfTheTimeThatHasPassed) {
    counters.traffic = {.received = 1000, .sent = 0};
    monitor->start();
    counters.traffic = {.received = 5000, .sent = 0};
    clock.advance(seconds(8));
    mainLoop.run();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 500);
}

TEST_F(SystemMonitorTest, AClockSetBackDoesNotDisturbTheRates) {
    counters.traffic = {.received = 1000, .sent = 0};
    monitor->start();
    clock.setNow(clock.now() - std::chrono::hours(1));
    counters.traffic = {.received = 3000, .sent = 0};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 1000);
}

TEST_F(SystemMonitorTest, WithoutAPrimaryInterfaceThereIsNoNetwork) {
    counters.link = platform::PrimaryLink{"wlan0", platform::WirelessLink{"Casa", -55}};
    monitor->start();
    counters.link.reset();
    sample();
    EXPECT_EQ(snap().netType, "—");
    EXPECT_FALSE(snap().netSsid);
    EXPECT_FALSE(snap().netRssi);
}

TEST_F(SystemMonitorTest, AWirelessInterfaceTellsItsNetworkAndSignal) {
    counters.link = platform::PrimaryLink{"wlan0", platform::WirelessLink{"Casa", -55}};
    monitor->start();
    EXPECT_EQ(snap().netType, "Wi-Fi");
    EXPECT_EQ(snap().netSsid, "Casa");
    EXPECT_EQ(snap().netRssi, -55);
}

TEST_F(SystemMonitorTest, AnyOtherPrimaryInterfaceCountsAsEthernet) {
    counters.link = platform::PrimaryLink{"tun0", std::nullopt};
    monitor->start();
    EXPECT_EQ(snap().netType, "Ethernet");
    EXPECT_FALSE(snap().netSsid);
    EXPECT_FALSE(snap().netRssi);
}

}  // namespace
}  // namespace tidewatch
