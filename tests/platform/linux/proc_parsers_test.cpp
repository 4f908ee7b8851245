#include <gmock/gmock.h>

#include "platform/linux/net_interfaces.h"
#include "platform/linux/proc_meminfo.h"
#include "platform/linux/proc_stat.h"

namespace tidewatch::platform {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

TEST(ParseCpuTimes, GarbageIsNoTime) {
    for (const char* text : {"", "\n", "cpu\n", "cpu  1 2 3\n", "cpu0 1 2 3 4\n", "cpu  1 2 x 4\n",
                             "cpu  1 2 3 -4\n", "cpu  1 2 3 4 5x\n", "cpu  18446744073709551616 2 3 4\n",
                             "intr 1\ncpu  1 2 3 4\n", "cpu  1 2 3 4"}) {
        EXPECT_FALSE(parseCpuTimes(text)) << text;
    }
    EXPECT_TRUE(parseCpuTimes("cpu  1 2 3 4\n"));
    EXPECT_TRUE(parseCpuTimes("cpu 18446744073709551615 2 3 4 5 6 7 8 9 10 11 12\n"));
}

TEST(ParseMemory, OldKernelsDoNotEstimateWhatIsAvailable) {
    const auto reading = parseMemory("MemTotal: 100 kB\nMemFree: 10 kB\nBuffers: 5 kB\nCached: 25 kB\n", 0);
    EXPECT_EQ(reading.usage->active, 60 * 1024);
}

TEST(ParseMemory, MoreAvailableThanThereIsMeansNothingActive) {
    const auto reading =
        parseMemory("MemTotal: 100 kB\nMemFree: 10 kB\nMemAvailable: 90 kB\nPageTables: 20 kB\n", 4096);
    EXPECT_EQ(reading.usage->active, 0);
    EXPECT_EQ(reading.usage->wired, 20 * 1024);
    EXPECT_EQ(reading.usage->compressed, 4096);
}

TEST(ParseMemory, WithoutOneOfItsFiguresThereIsNoUsage) {
    EXPECT_FALSE(parseMemory("MemTotal: 100 kB\nMemFree: 10 kB\n", 0).usage);
    EXPECT_FALSE(parseMemory("MemTotal: 100 kB\nMemAvailable: 10 kB\n", 0).usage);
    EXPECT_FALSE(parseMemory("MemFree: 10 kB\nMemAvailable: 10 kB\n", 0).usage);
    EXPECT_EQ(parseMemory("MemTotal: 100 kB\nMemFree: 10 kB\n", 0).total, 100 * 1024);
}

TEST(ParseMemory, GarbageIsNoFigure) {
    for (const char* value : {"", "kB", "x kB", "12", "12 MB", "12kB", "-1 kB", "18446744073709551616 kB",
                              "18446744073709551615 kB"}) {
        const auto text = std::string("MemTotal: ") + value + "\n";
        EXPECT_EQ(parseMemory(text, 0).total, 0) << value;
    }
}

TEST(ParseMemory, MoreFreeSwapThanThereIsMeansNoneUsed) {
    EXPECT_EQ(parseMemory("SwapTotal: 1 kB\nSwapFree: 2 kB\n", 0).swapUsed, 0);
    EXPECT_FALSE(parseMemory("SwapTotal: 1 kB\n", 0).swapUsed);
}

TEST(ParseZramMemory, IsTheThirdColumn) {
    EXPECT_EQ(parseZramMemory("1 2 3 4\n"), 3);
    EXPECT_EQ(parseZramMemory("1 2 3\n"), 3);
    EXPECT_FALSE(parseZramMemory("1 2\n"));
    EXPECT_FALSE(parseZramMemory(""));
    EXPECT_FALSE(parseZramMemory("1 2 x 4\n"));
}

TEST(ParseNetDev, ReadsNamesWithoutABlankAfterTheColonAndAliases) {
    const auto interfaces = parseNetDev("eth0:12 1 0 0 0 0 0 0 34 1 0\neth0:1: 5 1 0 0 0 0 0 0 6 1 0\n");
    ASSERT_THAT(interfaces, SizeIs(2));
    EXPECT_EQ(interfaces[0].name, "eth0");
    EXPECT_EQ(interfaces[0].bytes.received, 12);
    EXPECT_EQ(interfaces[0].bytes.sent, 34);
    EXPECT_EQ(interfaces[1].name, "eth0:1");
}

TEST(ParseNetDev, LinesThatAreCutOffOrGarbageAreLeftOut) {
    for (const char* line :
         {"", "eth0", "eth0:", "eth0: 12", "eth0: 12 1 0 0 0 0 0 0", "eth0: 12 1 0 0 0 0 0 0 34",
          "eth0: x 1 0 0 0 0 0 0 34 1", "eth0: 1 1 0 0 0 0 0 0 -3 1", ": 12 1 0 0 0 0 0 0 34 1",
          "eth0: 18446744073709551616 1 0 0 0 0 0 0 34 1"}) {
        EXPECT_THAT(parseNetDev(line), IsEmpty()) << line;
    }
    EXPECT_THAT(parseNetDev("eth0: 12 1 0 0 0 0 0 0 34 1"), SizeIs(1));
}

TEST(DefaultInterface, TheLowestMetricWinsAndOfEqualOnesTheFirst) {
    EXPECT_EQ(defaultInterface("a 0 0 0003 0 0 20 0\nb 0 0 0003 0 0 10 0\nc 0 0 0003 0 0 10 0\n"), "b");
}

TEST(DefaultInterface, RoutesThatAreDownRejectedOrToANetworkAreNone) {
    EXPECT_EQ(defaultInterface("a 0 0 0002 0 0 0 0\n"), std::nullopt);
    EXPECT_EQ(defaultInterface("a 0 0 0201 0 0 0 0\n"), std::nullopt);
    EXPECT_EQ(defaultInterface("a 000011AC 0 0001 0 0 0 0000FFFF\n"), std::nullopt);
    // The halves of the address space that a tunnel claims.
    EXPECT_EQ(defaultInterface("a 00000000 0 0001 0 0 0 00000080\n"), std::nullopt);
}

TEST(DefaultInterface, GarbageIsNoRoute) {
    for (const char* line :
         {"", "a", "a 0 0 0003 0 0 20", "a 0 0 zz 0 0 20 0", "a x 0 0003 0 0 20 0", " \t "})
        EXPECT_EQ(defaultInterface(line), std::nullopt) << line;
}

TEST(DefaultInterface6, TheKernelsOwnRejectingRouteIsNone) {
    const std::string any(32, '0');
    const auto route = [&](const char* flags, const char* name) {
        return any + " 00 " + any + " 00 " + any + " 00000400 00000001 00000000 " + flags + "     " + name +
               "\n";
    };
    EXPECT_EQ(defaultInterface6(route("00200200", "lo")), std::nullopt);
    EXPECT_EQ(defaultInterface6(route("00200201", "eth0")), std::nullopt);
    EXPECT_EQ(defaultInterface6(route("00000003", "lo")), std::nullopt);
    EXPECT_EQ(defaultInterface6(route("00000003", "eth0")), "eth0");
    EXPECT_EQ(defaultInterface6("0000 00\n"), std::nullopt);
}

}  // namespace
}  // namespace tidewatch::platform
