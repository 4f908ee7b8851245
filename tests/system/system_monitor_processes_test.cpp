#include <set>

#include "tests/system/system_monitor_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::string> names(const std::vector<SysProc>& rows) {
    std::vector<std::string> names;
    for (const auto& row : rows) names.push_back(row.name);
    return names;
}

TEST_F(SystemMonitorTest, TheThirdTickRefreshesTheProcesses) {
    counters.processes = {{"first", 1, 0}};
    monitor->start();
    counters.processes = {{"second", 1, 0}};
    sample(2);
    EXPECT_THAT(names(snap().topCpu), ElementsAre("first"));
    EXPECT_THAT(names(snap().topRam), ElementsAre("first"));
    sample();
    EXPECT_THAT(names(snap().topCpu), ElementsAre("second"));
    EXPECT_THAT(names(snap().topRam), ElementsAre("second"));
    sample(3);
    EXPECT_EQ(counters.processReadings, 3);
}

TEST_F(SystemMonitorTest, MemoryRowsAreTheBusiestProcessesWithTheirSizes) {
    counters.processes = {{"busy", 250.5, gibibyte / 1024}, {"large", 1, 3 * gibibyte}};
    monitor->start();
    EXPECT_THAT(names(snap().topRam), ElementsAre("busy", "large"));
    EXPECT_EQ(snap().topRam[0].value, 1);
    EXPECT_EQ(snap().topRam[1].value, 3072);
    EXPECT_EQ(snap().topCpu[0].value, 250.5);
    EXPECT_EQ(snap().topCpu[1].value, 1);
}

TEST_F(SystemMonitorTest, AtMostEightProcessesAreListed) {
    counters.processes.assign(20, {"worker", 1, 1});
    monitor->start();
    EXPECT_THAT(snap().topCpu, SizeIs(8));
    EXPECT_THAT(snap().topRam, SizeIs(8));
}

TEST_F(SystemMonitorTest, AProcessNameWithBlanksStaysWhole) {
    counters.processes = {{"Web Content Process", 1, 1}};
    monitor->start();
    EXPECT_THAT(names(snap().topCpu), ElementsAre("Web Content Process"));
}

TEST_F(SystemMonitorTest, ProcessListsShrinkToNothingIfThereAreNoneAnyMore) {
    counters.processes = {{"first", 1, 0}};
    monitor->start();
    counters.processes.clear();
    sample(3);
    EXPECT_THAT(snap().topCpu, IsEmpty());
    EXPECT_THAT(snap().topRam, IsEmpty());
}

TEST_F(SystemMonitorTest, RowsAndVolumesHaveNewIdentifiersEachTime) {
    counters.processes = {{"a", 1, 0}, {"b", 1, 0}};
    volumes.finish({{volume("data", 10)}});
    monitor->start();
    std::set<Uuid> ids;
    const auto collect = [&] {
        for (const auto* rows : {&snap().topCpu, &snap().topRam}) {
            for (const auto& row : *rows) ids.insert(row.id);
        }
        ids.insert(snap().disks.at(0).id);
    };
    collect();
    sample(3);
    collect();
    EXPECT_THAT(ids, SizeIs(10));
}

}  // namespace
}  // namespace tidewatch
