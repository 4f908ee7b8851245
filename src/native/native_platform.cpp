#include "native/native_platform.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QStandardPaths>

#include "native/process_environment.h"
#include "platform/freedesktop/autostart_login_item.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/freedesktop/desktop_notifications.h"
#include "platform/freedesktop/message_bus.h"
#include "platform/freedesktop/udisks_ejection.h"
#include "platform/freedesktop/xdg_applications.h"
#include "platform/freedesktop/xdg_desktop.h"
#include "platform/freedesktop/xdg_trash.h"
#include "platform/freedesktop/xdg_user_folders.h"
#include "platform/linux/linux_disk_volumes.h"
#include "platform/linux/linux_machine_counters.h"
#include "platform/linux/linux_process_memory.h"
#include "platform/posix/directory_lock.h"
#include "platform/posix/locked_single_instance.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/posix_process_termination.h"
#include "platform/posix/private_directory.h"
#include "platform/posix/stderr_log.h"
#include "platform/posix/system_randomness.h"
#include "platform/posix/threaded_job_queue_factory.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_http_client.h"
#include "platform/qt/qt_main_loop.h"
#include "platform/qt/qt_preferences.h"
#include "platform/qt/qt_screens.h"
#include "platform/x11/x11_active_application.h"
#include "platform/x11/x11_clipboard_guard.h"
#include "platform/x11/x11_input_activity.h"
#include "platform/x11/x11_running_applications.h"
#include "platform/x11/x11_window_system.h"

namespace tidewatch::platform {

namespace {

constexpr char ownIdentifier[] = "com.brightlooms.tidewatch";

std::string configDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString();
}

std::string dataDirectory() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
}

// A file from an earlier version, or one that was copied here, may be readable by others.
void makePreferencesPrivate() {
    restrictFile(configDirectory() + "/brightlooms/tidewatch.conf");
}

}  // namespace

struct NativePlatform::Impl {
    explicit Impl(const ProcessEnvironment& prepared) : environment(prepared) {}

    const ProcessEnvironment& environment;
    StderrLog log;
    QtClock clock;
    QtMainLoop mainLoop;
    DirectoryLock recordLock{log};
    PosixFileSystem files{&recordLock};
    QtPreferences preferences{configDirectory(), log};
    MessageBus sessionBus{environment.sessionBusAddress()};
    X11Connection idleConnection;
    X11InputActivity inputActivity{idleConnection};
    X11Connection focusConnection;
    DesktopEntries entries{DesktopEntries::standardFolders()};
    X11ActiveApplication frontmost{focusConnection, entries, AppId(ownIdentifier)};
    XdgApplications applications{entries};
    XdgDesktop desktop{sessionBus, applications, environment.inherited()};
    QtScreens screens;
    X11WindowSystem windowSystem;
    X11ClipboardGuard clipboardGuard{::getpid()};
    AutostartLoginItem loginItem{files, configDirectory(),
                                 QCoreApplication::applicationFilePath().toStdString()};
    LockedSingleInstance singleInstance{recordLock, log};
    PosixProcessTermination termination{[this] { preferences.sync(); }};
    SystemRandomness randomness;
    DesktopNotifications notifications{sessionBus, log};
    LinuxProcessMemory memory;
    ThreadedJobQueueFactory queues{mainLoop};
    LinuxMachineCounters counters;
    LinuxDiskVolumes volumes{mainLoop};
    UdisksEjection ejection{queues, UdisksEjection::standardAddress()};
    X11RunningApplications running{entries, applications, ::getpid(), [] { QCoreApplication::quit(); }};
    QtHttpClient http{mainLoop};
    XdgUserFolders userFolders{files.homeDirectory(), configDirectory()};
    XdgTrash trash{clock, dataDirectory()};
    Platform all{
        .log = log,
        .clock = clock,
        .mainLoop = mainLoop,
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
};

NativePlatform::NativePlatform(const ProcessEnvironment& environment)
    : impl_(std::make_unique<Impl>(environment)) {
    makePreferencesPrivate();
}
NativePlatform::~NativePlatform() = default;

const Platform& NativePlatform::platform() const {
    return impl_->all;
}

}  // namespace tidewatch::platform
