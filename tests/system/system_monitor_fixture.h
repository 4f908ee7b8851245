#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_disk_volumes.h"
#include "platform/fake/fake_machine_counters.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_randomness.h"
#include "system/system_monitor.h"

namespace tidewatch {

/// A monitor of a fake machine.
struct SystemMonitorTest : testing::Test {
    static constexpr std::uint64_t gibibyte = 1 << 30;

    platform::FakeClock clock{Instant(std::chrono::seconds(1'800'000'000))};
    platform::FakeMainLoop mainLoop{clock};
    platform::FakeMachineCounters counters;
    platform::FakeDiskVolumes volumes;
    platform::FakeRandomness randomness;
    std::unique_ptr<SystemMonitor> monitor = std::make_unique<SystemMonitor>(SystemMonitor::Dependencies{
        .clock = clock,
        .mainLoop = mainLoop,
        .counters = counters,
        .volumes = volumes,
        .randomness = randomness,
    });
    int samples = 0;
    Connection connection = monitor->changed.connect([this] { ++samples; });

    const SystemSnapshot& snap() { return monitor->snap(); }

    /// The next samples, at the default interval.
    void sample(int times = 1) { mainLoop.runFor(SystemMonitor::defaultInterval * times); }

    static platform::MountedVolume volume(const std::string& name, std::int64_t total) {
        return {
            .path = "/media/" + name, .name = name, .totalBytes = total, .freeBytes = 1, .isInternal = true};
    }
    std::vector<std::string> diskNames() {
        std::vector<std::string> names;
        for (const auto& disk : snap().disks) names.push_back(disk.name);
        return names;
    }
};

}  // namespace tidewatch
