#include "native/process_environment.h"

#include <malloc.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>

#include "platform/freedesktop/bus_proxy.h"
#include "platform/freedesktop/session_probes.h"
#include "platform/posix/regular_file.h"
#include "platform/posix/stderr_log.h"
#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

namespace {

using namespace std::chrono_literals;

constexpr int keptAllocations = 256 * 1024;          // bytes
constexpr std::size_t maxAnnouncementLength = 4096;  // bytes
constexpr auto sessionTimeout = 1s;

/// Toolkit variables left to the user: scaling, input method, accessibility.
constexpr std::array<std::string_view, 11> harmlessVariables = {
    "QT_ACCESSIBILITY",
    "QT_AUTO_SCREEN_SCALE_FACTOR",
    "QT_ENABLE_HIGHDPI_SCALING",
    "QT_FONT_DPI",
    "QT_IM_MODULE",
    "QT_LINUX_ACCESSIBILITY_ALWAYS_ON",
    "QT_LOGGING_RULES",
    "QT_SCALE_FACTOR",
    "QT_SCALE_FACTOR_ROUNDING_POLICY",
    "QT_SCREEN_SCALE_FACTORS",
    "QT_USE_PHYSICAL_DPI",
};

constexpr std::array<std::string_view, 4> toolkitPrefixes = {"QT_", "QML", "QSG_", "QV4_"};

bool loadsCode(std::string_view variable) {
    const auto begins = [variable](std::string_view prefix) { return variable.starts_with(prefix); };
    return std::ranges::any_of(toolkitPrefixes, begins) &&
           std::ranges::find(harmlessVariables, variable) == harmlessVariables.end();
}

void removeCodeLoadingVariables(const QProcessEnvironment& inherited) {
    for (const auto& name : inherited.keys()) {
        if (const auto variable = name.toStdString(); loadsCode(variable)) qunsetenv(variable.c_str());
    }
}

/// The address of the session bus, empty if there is none. No bus is started for this program alone.
std::string busAddress() {
    if (const auto address = qgetenv("DBUS_SESSION_BUS_ADDRESS"); !address.isEmpty()) {
        return address.toStdString();
    }
    const auto standard = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR")) + "/bus";
    return QDir::isAbsolutePath(standard) && QFile::exists(standard) ? "unix:path=" + standard.toStdString()
                                                                     : "";
}

/// The address of the accessibility bus, as the toolkit would determine it.
std::string accessibilityAddress(const X11Connection& server) {
    if (const auto address = qgetenv("AT_SPI_BUS_ADDRESS"); !address.isEmpty()) return address.toStdString();
    const auto announced = server.texts(server.root(), server.atom("AT_SPI_BUS"));
    return announced.empty() ? "" : announced.front();
}

void keepSessionManager() {
    const auto managers = qgetenv("SESSION_MANAGER");
    if (managers.isEmpty()) return;
    const auto answering = responsiveSessionManagers(managers.toStdString(), sessionTimeout);
    if (answering.empty()) {
        qunsetenv("SESSION_MANAGER");
    } else {
        qputenv("SESSION_MANAGER", QByteArray::fromStdString(answering));
    }
}

/// Whether each input method that has published an address responds.
bool isInputMethodResponsive() {
    auto configuration = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    if (configuration.isEmpty()) configuration = QDir::homePath() + "/.config";
    const QDir announcements(configuration + "/ibus/bus");
    constexpr std::string_view key = "IBUS_ADDRESS=";
    for (const auto& name : announcements.entryList(QDir::Files)) {
        const auto announced =
            readRegularFile(announcements.filePath(name).toStdString(), maxAnnouncementLength);
        if (!announced) continue;
        for (const auto& line : QByteArray::fromStdString(announced.value()).split('\n')) {
            const auto text = line.trimmed().toStdString();
            if (text.starts_with(key) && !isBusResponsive(text.substr(key.size()), sessionTimeout))
                return false;
        }
    }
    return true;
}

void keepInputMethod() {
    if (qgetenv("QT_IM_MODULE") == "ibus" && !isInputMethodResponsive()) qunsetenv("QT_IM_MODULE");
}

}  // namespace

struct ProcessEnvironment::Impl {
    QProcessEnvironment inherited = QProcessEnvironment::systemEnvironment();
    bool hasDisplay = false;
    std::string sessionBus;
    BusProxy busProxy;
};

ProcessEnvironment::ProcessEnvironment() {
    // Every write of a long record allocates its text. Allocations above this size are mapped separately and
    // returned when freed; by default, the allocator would raise the threshold and keep the largest one.
    mallopt(M_MMAP_THRESHOLD, keptAllocations);
    mallopt(M_TRIM_THRESHOLD, keptAllocations);
    impl_ = std::make_unique<Impl>();

    removeCodeLoadingVariables(impl_->inherited);
    qputenv("QT_QPA_PLATFORM", "xcb");
    const X11Connection server;
    impl_->hasDisplay = server.alive();
    if (!impl_->hasDisplay) {
        const auto display = impl_->inherited.value("DISPLAY").toStdString();
        StderrLog().warning("Tidewatch: no X server answers at \"" + display +
                            "\" (DISPLAY), and the clock needs one");
        return;
    }
    impl_->sessionBus = impl_->busProxy.proxiedAddress(busAddress());
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString(impl_->sessionBus));
    // A responsive bus is left to the toolkit, which connects to it without a proxy: with an address in the
    // environment, this version of it would report no window to screen readers.
    if (const auto address = accessibilityAddress(server);
        !address.empty() && !isBusResponsive(address, sessionTimeout)) {
        qputenv("AT_SPI_BUS_ADDRESS", QByteArray::fromStdString(impl_->busProxy.proxiedAddress(address)));
    }
    keepSessionManager();
    keepInputMethod();
}

ProcessEnvironment::~ProcessEnvironment() = default;

bool ProcessEnvironment::hasDisplay() const {
    return impl_->hasDisplay;
}

const QProcessEnvironment& ProcessEnvironment::inherited() const {
    return impl_->inherited;
}

QString ProcessEnvironment::sessionBusAddress() const {
    return QString::fromStdString(impl_->sessionBus);
}

}  // namespace tidewatch::platform
