#include "system/machine_overview.h"

#include <gtest/gtest.h>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using platform::UserFolder;

/// Counts the queues, each of which is a thread.
class CountingQueues final : public platform::JobQueueFactory {
public:
    explicit CountingQueues(platform::MainLoop& mainLoop) : queues_(mainLoop) {}

    using JobQueueFactory::makeQueue;
    [[nodiscard]] std::unique_ptr<JobQueue> makeQueue(const std::string& name,
                                                      platform::JobPriority priority) override {
        ++count;
        return queues_.makeQueue(name, priority);
    }

    int count = 0;

private:
    platform::FakeJobQueueFactory queues_;
};

struct MachineOverviewTest : testing::Test {
    test::FakeWorld world;
    CountingQueues queues{world.mainLoop};
    MachineOverview machine{{
        .clock = world.clock,
        .mainLoop = world.mainLoop,
        .files = world.files,
        .log = world.log,
        .randomness = world.randomness,
        .queues = queues,
        .counters = world.counters,
        .volumes = world.volumes,
        .ejection = world.ejection,
        .running = world.running,
        .http = world.http,
        .userFolders = world.userFolders,
        .desktop = world.desktop,
        .trash = world.trash,
    }};
};

TEST_F(MachineOverviewTest, NothingRunsBeforeSomebodyAsks) {
    world.mainLoop.runFor(std::chrono::minutes(1));
    EXPECT_EQ(queues.count, 0);
    EXPECT_EQ(world.mainLoop.timerCount(), 0);
    EXPECT_EQ(world.volumes.refreshes, 0);
    EXPECT_EQ(world.counters.processReadings, 0);
    EXPECT_EQ(world.http.requestCount(), 0);
}

TEST_F(MachineOverviewTest, EachPartIsConnectedToTheMachine) {
    ASSERT_TRUE(world.files.createDirectories("/home/user/Descargas"));
    world.userFolders.paths[UserFolder::downloads] = "/home/user/Descargas";
    world.counters.memoryReading = {.total = 100};
    machine.monitor.start();
    machine.analyzer.scan();
    machine.speedTester.startTest();
    machine.ejector.eject("/media/usb", [](const auto&) {});
    world.mainLoop.run();
    EXPECT_EQ(machine.monitor.snap().ramTotal, 100);
    EXPECT_EQ(machine.analyzer.result().scannedRoots.size(), 1);
    EXPECT_EQ(world.http.requestCount(), 1);
    EXPECT_EQ(world.ejection.requested.size(), 1);
    EXPECT_EQ(queues.count, 1);
}

}  // namespace
}  // namespace tidewatch
