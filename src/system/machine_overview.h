#pragma once

#include "platform/api/desktop.h"
#include "platform/api/running_applications.h"
#include "system/disk_analyzer.h"
#include "system/speed_tester.h"
#include "system/system_monitor.h"
#include "system/volume_ejector.h"

namespace tidewatch {

/// What is known of the machine, its disks and its network, built together. Nothing of it runs, and no thread
/// is started, before somebody asks. Main thread only.
struct MachineOverview final {
    /// All of it must outlive the bundle.
    struct Dependencies {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        platform::FileSystem& files;
        platform::Log& log;
        platform::Randomness& randomness;
        platform::JobQueueFactory& queues;
        platform::MachineCounters& counters;
        platform::DiskVolumes& volumes;
        platform::VolumeEjection& ejection;
        platform::RunningApplications& running;
        platform::HttpClient& http;
        platform::UserFolders& userFolders;
        platform::Desktop& desktop;
        platform::Trash& trash;
    };

    explicit MachineOverview(const Dependencies& dependencies)
        : monitor({
              .clock = dependencies.clock,
              .mainLoop = dependencies.mainLoop,
              .counters = dependencies.counters,
              .volumes = dependencies.volumes,
              .randomness = dependencies.randomness,
          }),
          analyzer({
              .clock = dependencies.clock,
              .files = dependencies.files,
              .folders = dependencies.userFolders,
              .desktop = dependencies.desktop,
              .trash = dependencies.trash,
              .log = dependencies.log,
              .randomness = dependencies.randomness,
              .queues = dependencies.queues,
          }),
          speedTester({
              .clock = dependencies.clock,
              .mainLoop = dependencies.mainLoop,
              .counters = dependencies.counters,
              .http = dependencies.http,
          }),
          ejector({
              .ejection = dependencies.ejection,
              .volumes = dependencies.volumes,
              .log = dependencies.log,
          }),
          running(dependencies.running),
          desktop(dependencies.desktop) {}

    SystemMonitor monitor;
    DiskAnalyzer analyzer;
    SpeedTester speedTester;
    VolumeEjector ejector;
    platform::RunningApplications& running;  ///< for quitApplications()
    platform::Desktop& desktop;              ///< for its words
};

}  // namespace tidewatch
