#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/api/platform.h"
#include "platform/fake/fake_applications.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_desktop.h"
#include "platform/fake/fake_disk_volumes.h"
#include "platform/fake/fake_frontmost_application.h"
#include "platform/fake/fake_http_client.h"
#include "platform/fake/fake_input_activity.h"
#include "platform/fake/fake_job_queue_factory.h"
#include "platform/fake/fake_log.h"
#include "platform/fake/fake_login_item.h"
#include "platform/fake/fake_machine_counters.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_process_memory.h"
#include "platform/fake/fake_process_termination.h"
#include "platform/fake/fake_randomness.h"
#include "platform/fake/fake_running_applications.h"
#include "platform/fake/fake_screens.h"
#include "platform/fake/fake_single_instance.h"
#include "platform/fake/fake_trash.h"
#include "platform/fake/fake_user_folders.h"
#include "platform/fake/fake_user_notifications.h"
#include "platform/fake/fake_volume_ejection.h"
#include "platform/fake/fake_window_system.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_preferences.h"

namespace tidewatch::platform {

/// A complete platform of fakes.
struct FakeMachine {
    /// Starts at `now`, UTC; `reportFailure` receives the log's unexpected warnings.
    FakeMachine(Instant now, std::function<void(const std::string&)> reportFailure)
        : log(std::move(reportFailure)), clock(now) {}

    FakeLog log;
    FakeClock clock;
    FakeMainLoop mainLoop{clock};
    MemoryFileSystem files;
    MemoryPreferences preferences;
    FakeInputActivity inputActivity;
    FakeFrontmostApplication frontmost;
    FakeApplications applications;
    FakeDesktop desktop;
    FakeScreens screens;
    FakeWindowSystem windowSystem;
    FakeLoginItem loginItem;
    FakeSingleInstance singleInstance;
    FakeProcessTermination termination;
    FakeRandomness randomness;
    FakeUserNotifications notifications;
    FakeProcessMemory memory;
    FakeJobQueueFactory queues{mainLoop};
    FakeMachineCounters counters;
    FakeDiskVolumes volumes;
    FakeVolumeEjection ejection;
    FakeRunningApplications running;
    FakeHttpClient http{mainLoop};
    FakeUserFolders userFolders;
    FakeTrash trash;

    Platform platform = on(mainLoop);

    /// The same machine with another main loop, which must outlive the result.
    [[nodiscard]] Platform on(MainLoop& loop) {
        return {
            .log = log,
            .clock = clock,
            .mainLoop = loop,
            .files = files,
            .preferences = preferences,
            .inputActivity = inputActivity,
            .frontmost = frontmost,
            .applications = applications,
            .desktop = desktop,
            .screens = screens,
            .windowSystem = windowSystem,
            .loginItem = loginItem,
            .singleInstance = singleInstance,
            .termination = termination,
            .randomness = randomness,
            .notifications = notifications,
            .memory = memory,
            .queues = queues,
            .counters = counters,
            .volumes = volumes,
            .ejection = ejection,
            .running = running,
            .http = http,
            .userFolders = userFolders,
            .trash = trash,
        };
    }
};

}  // namespace tidewatch::platform
