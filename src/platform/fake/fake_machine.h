#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/api/platform.h"
#include "platform/fake/fake_applications.h"
#include "platform/fake/fake_background.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_desktop.h"
#include "platform/fake/fake_frontmost_application.h"
#include "platform/fake/fake_input_activity.h"
#include "platform/fake/fake_log.h"
#include "platform/fake/fake_login_item.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_process_endings.h"
#include "platform/fake/fake_process_memory.h"
#include "platform/fake/fake_randomness.h"
#include "platform/fake/fake_running_instance.h"
#include "platform/fake/fake_screens.h"
#include "platform/fake/fake_user_notifications.h"
#include "platform/fake/fake_window_system.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_preferences.h"

namespace tidewatch::platform {

/// Every operation of the seam on fakes.
struct FakeMachine {
    /// Starts at `now`, UTC; `complain` is for the log's unannounced warnings.
    FakeMachine(Instant now, std::function<void(const std::string&)> complain)
        : log(std::move(complain)), clock(now) {}

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
    FakeRunningInstance runningInstance;
    FakeProcessEndings endings;
    FakeRandomness randomness;
    FakeUserNotifications notifications;
    FakeProcessMemory memory;
    FakeBackground background{mainLoop};

    Platform platform = on(mainLoop);

    /// The same machine with another main loop, which must outlive what is returned.
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
            .runningInstance = runningInstance,
            .endings = endings,
            .randomness = randomness,
            .notifications = notifications,
            .memory = memory,
            .background = background,
        };
    }
};

}  // namespace tidewatch::platform
