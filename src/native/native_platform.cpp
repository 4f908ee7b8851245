#include "native/native_platform.h"

#include <malloc.h>

#include <QCoreApplication>
#include <QStandardPaths>

#include "platform/linux/autostart_login_item.h"
#include "platform/linux/desktop_notifications.h"
#include "platform/linux/desktop_workspace.h"
#include "platform/linux/linux_process_endings.h"
#include "platform/linux/linux_process_memory.h"
#include "platform/linux/locked_running_instance.h"
#include "platform/linux/posix_file_system.h"
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

constexpr int keptAllocations = 256 * 1024;  // bytes
constexpr char ownIdentifier[] = "com.brightlooms.tidewatch";

std::string configDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString();
}

}  // namespace

void prepareEnvironment() {
    // The texts of a long record go through memory at every write. Above this size an allocation is the
    // kernel's own, and is gone when it is freed; left to itself, the allocator would keep the largest one
    // for ever.
    mallopt(M_MMAP_THRESHOLD, keptAllocations);
    mallopt(M_TRIM_THRESHOLD, keptAllocations);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
}

struct NativePlatform::Parts {
    StderrLog log;
    QtClock clock;
    QtMainLoop mainLoop;
    PosixFileSystem files;
    QtPreferences preferences;
    X11Connection idleConnection;
    X11InputActivity inputActivity{idleConnection};
    DesktopWorkspace workspace{AppId(ownIdentifier)};
    QtScreens screens;
    X11WindowManager windowManager;
    AutostartLoginItem loginItem{files, configDirectory(),
                                 QCoreApplication::applicationFilePath().toStdString()};
    LockedRunningInstance runningInstance{log};
    LinuxProcessEndings endings;
    SystemRandomness randomness;
    DesktopNotifications notifications{QDBusConnection::sessionBus(), log};
    LinuxProcessMemory memory;
    Platform all{log,        clock,         mainLoop,      files,     preferences,     inputActivity,
                 workspace,  screens,       windowManager, loginItem, runningInstance, endings,
                 randomness, notifications, memory};
};

NativePlatform::NativePlatform() : parts_(std::make_unique<Parts>()) {}
NativePlatform::~NativePlatform() = default;

const Platform& NativePlatform::platform() const {
    return parts_->all;
}

}  // namespace tidewatch::platform
