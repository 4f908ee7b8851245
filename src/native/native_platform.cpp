#include "native/native_platform.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include "native/process_environment.h"
#include "platform/linux/autostart_login_item.h"
#include "platform/linux/desktop_notifications.h"
#include "platform/linux/desktop_workspace.h"
#include "platform/linux/directory_lock.h"
#include "platform/linux/linux_process_endings.h"
#include "platform/linux/linux_process_memory.h"
#include "platform/linux/locked_running_instance.h"
#include "platform/linux/posix_file_system.h"
#include "platform/linux/private_directory.h"
#include "platform/linux/session_bus.h"
#include "platform/linux/stderr_log.h"
#include "platform/linux/system_randomness.h"
#include "platform/linux/x11_input_activity.h"
#include "platform/linux/x11_window_manager.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_main_loop.h"
#include "platform/qt/qt_preferences.h"
#include "platform/qt/qt_screens.h"

namespace tidewatch::platform {

namespace {

constexpr char ownIdentifier[] = "com.brightlooms.tidewatch";

std::string configDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString();
}

// A file from before, or one that was copied here, may be open to others.
void makePreferencesPrivate() {
    narrowFile(configDirectory() + "/brightlooms/tidewatch.conf");
}

}  // namespace

struct NativePlatform::Parts {
    explicit Parts(const ProcessEnvironment& prepared) : environment(prepared) {}

    const ProcessEnvironment& environment;
    StderrLog log;
    QtClock clock;
    QtMainLoop mainLoop;
    DirectoryLock recordLock{log};
    PosixFileSystem files{&recordLock};
    QtPreferences preferences{configDirectory(), log};
    SessionBus sessionBus{environment.sessionBusAddress()};
    X11Connection idleConnection;
    X11InputActivity inputActivity{idleConnection};
    DesktopWorkspace workspace{AppId(ownIdentifier), sessionBus, environment.inherited()};
    QtScreens screens;
    X11WindowManager windowManager;
    AutostartLoginItem loginItem{files, configDirectory(),
                                 QCoreApplication::applicationFilePath().toStdString()};
    LockedRunningInstance runningInstance{recordLock, log};
    LinuxProcessEndings endings{[this] { preferences.sync(); }};
    SystemRandomness randomness;
    DesktopNotifications notifications{sessionBus, log};
    LinuxProcessMemory memory;
    Platform all{log,        clock,         mainLoop,      files,     preferences,     inputActivity,
                 workspace,  screens,       windowManager, loginItem, runningInstance, endings,
                 randomness, notifications, memory};
};

NativePlatform::NativePlatform(const ProcessEnvironment& environment)
    : parts_(std::make_unique<Parts>(environment)) {
    makePreferencesPrivate();
}
NativePlatform::~NativePlatform() = default;

const Platform& NativePlatform::platform() const {
    return parts_->all;
}

}  // namespace tidewatch::platform
