#include "platform/linux/proc_processes.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <map>

#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

using std::chrono::seconds;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using namespace std::string_literals;

const double ticksPerSecond = static_cast<double>(::sysconf(_SC_CLK_TCK));
const auto pageSize = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));

struct ProcProcessesTest : testing::Test {
    test::TemporaryDirectory proc;
    std::map<int, std::chrono::nanoseconds> times;  // of processes whose clock can be read
    ProcProcesses processes{proc.path(), [this](int id) {
                                const auto time = times.find(id);
                                return time == times.end() ? std::nullopt : std::optional(time->second);
                            }};

    ProcProcessesTest() { setUptime(1000); }

    void setUptime(double seconds) { proc.write("uptime", fmt::format("{:.2f} 1.00\n", seconds)); }

    // Processor time and start in seconds.
    void put(int id, const std::string& name, double cpu, double start, std::uint64_t pages = 1) {
        const auto ticks = static_cast<std::uint64_t>(cpu * ticksPerSecond);
        const auto user = ticks / 3;
        proc.write(
            fmt::format("{}/stat", id),
            fmt::format("{} ({}) S 1 1 1 0 -1 4194304 1 2 3 4 {} {} 999 999 20 0 1 0 {} 5000000 {} 7 8\n", id,
                        name, user, ticks - user, static_cast<std::uint64_t>(start * ticksPerSecond), pages));
    }
    void end(int id) { std::filesystem::remove_all(fmt::format("{}/{}", proc.path(), id)); }

    std::vector<std::string> names(std::size_t limit = 8) {
        std::vector<std::string> names;
        for (const auto& load : processes.busiest(limit)) names.push_back(load.name);
        return names;
    }
};

TEST_F(ProcProcessesTest, TheFirstListIsOverTheLifeOfEachProcess) {
    put(10, "old", 100, 0);
    put(20, "new", 100, 800);
    const auto list = processes.busiest(8);
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_EQ(list[0].name, "new");
    EXPECT_DOUBLE_EQ(list[0].cpuPercent, 50);
    EXPECT_EQ(list[1].name, "old");
    EXPECT_DOUBLE_EQ(list[1].cpuPercent, 10);
}

TEST_F(ProcProcessesTest, LaterListsAreOverTheTimeSinceTheLastOne) {
    put(10, "busy then", 500, 0);
    put(20, "busy now", 0, 0);
    EXPECT_THAT(names(), ElementsAre("busy then", "busy now"));
    setUptime(1006);
    put(10, "busy then", 500.6, 0);
    put(20, "busy now", 12, 0);
    const auto list = processes.busiest(8);
    EXPECT_EQ(list[0].name, "busy now");
    EXPECT_DOUBLE_EQ(list[0].cpuPercent, 200);
    EXPECT_NEAR(list[1].cpuPercent, 10, 0.5);
}

TEST_F(ProcProcessesTest, AProcessThatIsNewIsMeasuredOverItsLife) {
    EXPECT_THAT(names(), IsEmpty());
    setUptime(1006);
    put(30, "new", 1, 1004);
    EXPECT_DOUBLE_EQ(processes.busiest(8).at(0).cpuPercent, 50);
}

TEST_F(ProcProcessesTest, ANumberThatAnotherProcessHasTakenIsANewProcess) {
    put(30, "first", 900, 0);
    EXPECT_THAT(names(), ElementsAre("first"));
    setUptime(1006);
    put(30, "second", 3, 1000);
    EXPECT_DOUBLE_EQ(processes.busiest(8).at(0).cpuPercent, 50);
}

TEST_F(ProcProcessesTest, AProcessThatEndsIsGone) {
    put(10, "a", 5, 0);
    put(20, "b", 9, 0);
    EXPECT_THAT(names(), ElementsAre("b", "a"));
    end(20);
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(ProcProcessesTest, OfEquallyBusyOnesTheLowerNumberComesFirst) {
    for (const int id : {30, 9, 100}) put(id, fmt::format("p{}", id), 0, 0);
    EXPECT_THAT(names(), ElementsAre("p9", "p30", "p100"));
}

TEST_F(ProcProcessesTest, OnlyAsManyAsAskedForAreListed) {
    for (int id = 1; id <= 20; ++id) put(id, fmt::format("p{}", id), id, 0);
    EXPECT_THAT(names(3), ElementsAre("p20", "p19", "p18"));
    EXPECT_THAT(names(100), SizeIs(20));
}

TEST_F(ProcProcessesTest, TheSizeIsWhatIsResident) {
    put(10, "a", 5, 0, 3000);
    EXPECT_EQ(processes.busiest(8).at(0).resident, 3000 * pageSize);
}

TEST_F(ProcProcessesTest, ANameWithBlanksAndParenthesesStaysWhole) {
    put(10, "Web (a) b) (c", 5, 0);
    EXPECT_THAT(names(), ElementsAre("Web (a) b) (c"));
}

TEST_F(ProcProcessesTest, ANameOfBlanksIsLeftOutAndOthersAreTrimmed) {
    put(10, "  ", 5, 0);
    put(11, "", 5, 0);
    put(12, " a b ", 5, 0);
    EXPECT_THAT(names(), ElementsAre("a b"));
}

TEST_F(ProcProcessesTest, ANameThatMayHaveBeenCutOffIsCompletedFromTheCommandLine) {
    put(10, "fifteen-letters", 5, 0);
    proc.write("10/cmdline", "/usr/lib/fifteen-letters-and-more\0--option\0"s);
    EXPECT_THAT(names(), ElementsAre("fifteen-letters-and-more"));
}

TEST_F(ProcProcessesTest, OrFromItsExecutable) {
    put(10, "fifteen-letters", 5, 0);
    proc.write("10/cmdline", "other\0"s);
    std::filesystem::create_symlink("/usr/lib/fifteen-letters-and-more", proc.path() + "/10/exe");
    EXPECT_THAT(names(), ElementsAre("fifteen-letters-and-more"));
}

TEST_F(ProcProcessesTest, WhatIsNoProcessIsPassedOver) {
    put(10, "a", 5, 0);
    proc.write("sys/stat", "1 (kernel) S\n");
    proc.write("11x/stat", proc.read("10/stat"));
    std::filesystem::create_directories(proc.path() + "/12");
    std::filesystem::create_directories(proc.path() + "/13/stat");
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(ProcProcessesTest, WithoutAnUptimeThereIsNoList) {
    std::filesystem::remove(proc.path() + "/uptime");
    put(10, "a", 5, 0);
    EXPECT_THAT(names(), IsEmpty());
    proc.write("uptime", "soon\n");
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcProcessesTest, AListAtTheSameMomentHasNoLoad) {
    put(10, "a", 5, 0);
    EXPECT_THAT(names(), ElementsAre("a"));
    put(10, "a", 6, 0);
    EXPECT_EQ(processes.busiest(8).at(0).cpuPercent, 0);
}

TEST_F(ProcProcessesTest, TimeThatGoesBackIsNoLoad) {
    put(10, "a", 5, 0);
    EXPECT_THAT(names(), ElementsAre("a"));
    setUptime(1006);
    put(10, "a", 4, 0);
    EXPECT_EQ(processes.busiest(8).at(0).cpuPercent, 0);
}

TEST_F(ProcProcessesTest, TheClockOfAProcessTellsItsTimeWithoutItsFile) {
    put(10, "a", 5, 0);
    put(20, "b", 5, 0);
    times = {{10, seconds(100)}, {20, seconds(200)}};
    EXPECT_THAT(names(), ElementsAre("b", "a"));
    setUptime(1010);
    times = {{10, seconds(120)}, {20, seconds(201)}};
    const auto list = processes.busiest(8);
    EXPECT_EQ(list[0].name, "a");
    EXPECT_DOUBLE_EQ(list[0].cpuPercent, 200);
    EXPECT_DOUBLE_EQ(list[1].cpuPercent, 10);
}

TEST_F(ProcProcessesTest, AClockThatStartsAnewIsThatOfANewProcess) {
    put(10, "first", 0, 0);
    times = {{10, seconds(100)}};
    EXPECT_THAT(names(), ElementsAre("first"));
    setUptime(1010);
    put(10, "second", 0, 1008);
    times = {{10, seconds(1)}};
    const auto list = processes.busiest(8);
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].name, "second");
    EXPECT_DOUBLE_EQ(list[0].cpuPercent, 50);
}

TEST_F(ProcProcessesTest, AProcessIsNotTakenForAnotherOneThatHadItsNumber) {
    put(10, "first", 0, 0);
    times = {{10, seconds(100)}};
    EXPECT_THAT(names(), ElementsAre("first"));
    setUptime(1200);
    put(10, "second", 0, 1001);
    times = {{10, seconds(101)}};
    // Only its file tells them apart, which is read last.
    EXPECT_THAT(names(), IsEmpty());
    const auto list = processes.busiest(8);
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].name, "second");
    EXPECT_NEAR(list[0].cpuPercent, 100 * 101.0 / 199, 1e-9);
}

TEST(ProcessorTimeOf, IsThatOfThisProcess) {
    const auto before = processorTimeOf(::getpid()).value();
    EXPECT_GT(before, seconds(0));
    EXPECT_GE(processorTimeOf(::getpid()).value(), before);
    // Above the greatest number that the kernel gives.
    EXPECT_EQ(processorTimeOf(5'000'000), std::nullopt);
}

TEST(ParseProcessStat, AFileThatIsCutOffOrGarbageIsNone) {
    const std::string whole =
        "10 (a) S 1 1 1 0 -1 4194304 1 2 3 4 100 200 9 9 20 0 1 0 5555 5000000 77 18446744073709551615 1\n";
    const auto stat = parseProcessStat(whole);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, "a");
    EXPECT_EQ(stat->cpuTicks, 300);
    EXPECT_EQ(stat->startTicks, 5555);
    EXPECT_EQ(stat->residentPages, 77);
    const auto sizeEnd = whole.find(" 77 ") + 3;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(parseProcessStat(std::string_view(whole).substr(0, length)).has_value(),
                  length > sizeEnd + 1)
            << length;
    }
    EXPECT_FALSE(parseProcessStat(") 10 ("));
    EXPECT_FALSE(
        parseProcessStat("10 (a) S 1 1 1 0 -1 4194304 1 2 3 4 x 200 9 9 20 0 1 0 5555 5000000 77 8\n"));
    EXPECT_FALSE(
        parseProcessStat("10 (a) S 1 1 1 0 -1 4194304 1 2 3 4 1 -2 9 9 20 0 1 0 5555 5000000 77 8\n"));
}

TEST(WholeProcessName, AShortNameIsWhole) {
    EXPECT_EQ(wholeProcessName("fourteen-chars", "fourteen-chars-more", ""), "fourteen-chars");
}

TEST(WholeProcessName, ANameThatTheProgramGaveItselfStays) {
    EXPECT_EQ(wholeProcessName("Isolated Web Co", "/usr/lib/browser/browser\0-child\0"s,
                               "/usr/lib/browser/browser"),
              "Isolated Web Co");
}

TEST(WholeProcessName, ArgumentsMayBeOneTextWithBlanks) {
    EXPECT_EQ(wholeProcessName("fifteen-letters", "/opt/fifteen-letters-more --type=renderer", ""),
              "fifteen-letters-more");
}

}  // namespace
}  // namespace tidewatch::platform
