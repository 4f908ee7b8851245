#include "platform/freedesktop/udisks_ejection.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariantMap>
#include <chrono>
#include <cstdlib>
#include <deque>
#include <utility>

#include "platform/freedesktop/ejection_plan.h"
#include "platform/freedesktop/session_probes.h"

namespace tidewatch::platform {

namespace {

using namespace std::chrono_literals;

constexpr char diskService[] = "org.freedesktop.UDisks2";
constexpr char managerPath[] = "/org/freedesktop/UDisks2";
constexpr auto probeTimeout = 2s;
// What has not been written yet is written first, and the user may have to confirm with a password.
constexpr std::chrono::milliseconds callTimeout = 10min;

using Done = std::function<void(const std::optional<EjectionError>& error)>;

EjectionErrorKind kindOf(const QDBusError& error) {
    if (error.name() == "org.freedesktop.UDisks2.Error.DeviceBusy") return EjectionErrorKind::inUse;
    if (error.name().startsWith("org.freedesktop.UDisks2.Error.NotAuthorized"))
        return EjectionErrorKind::noPermission;
    // The service is not running, and cannot be started.
    if (error.name().startsWith("org.freedesktop.DBus.Error.Spawn")) return EjectionErrorKind::noService;
    switch (error.type()) {
        case QDBusError::AccessDenied:
            return EjectionErrorKind::noPermission;
        case QDBusError::Disconnected:
        case QDBusError::ServiceUnknown:
            return EjectionErrorKind::noService;
        default:
            return EjectionErrorKind::other;
    }
}

QDBusMessage callOf(const QString& path, const char* interface, const char* method) {
    auto call = QDBusMessage::createMethodCall(diskService, path, interface, method);
    call << QVariantMap();  // no options
    return call;
}

// One ejection: a list of calls, one after the other. Deletes itself at the end.
class Ejection final : public QObject {
public:
    Ejection(const QDBusConnection& bus, std::string mountPoint, Done done, QObject* parent)
        : QObject(parent), bus_(bus), mountPoint_(std::move(mountPoint)), done_(std::move(done)) {}

    void start() {
        const auto objects = QDBusMessage::createMethodCall(
            diskService, managerPath, "org.freedesktop.DBus.ObjectManager", "GetManagedObjects");
        send(objects, [this](const QDBusMessage& reply) { plan(reply); });
    }

private:
    void send(const QDBusMessage& message, std::function<void(const QDBusMessage& reply)> then) {
        const auto call = bus_.asyncCall(message, static_cast<int>(callTimeout.count()));
        auto* watcher = new QDBusPendingCallWatcher(call, this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, then = std::move(then)] {
            watcher->deleteLater();
            if (!watcher->isError()) return then(watcher->reply());
            const auto error = watcher->error();
            end(EjectionError{kindOf(error), (error.name() + ": " + error.message()).toStdString()});
        });
    }

    void plan(const QDBusMessage& reply) {
        if (reply.signature() != "a{oa{sa{sv}}}")
            return end(
                EjectionError{EjectionErrorKind::other, "the disk service answers in another language"});
        const auto objects = qdbus_cast<DiskObjects>(reply.arguments().constFirst());
        const auto plan = planEjection(objects, QByteArray::fromStdString(mountPoint_));
        if (!plan)
            return end(
                EjectionError{EjectionErrorKind::noService, "the disk service does not know the volume"});
        steps_.push_back(callOf(plan->fileSystem, "org.freedesktop.UDisks2.Filesystem", "Unmount"));
        if (!plan->encrypted.isEmpty())
            steps_.push_back(callOf(plan->encrypted, "org.freedesktop.UDisks2.Encrypted", "Lock"));
        if (!plan->drive.isEmpty()) {
            const bool powersOff = plan->action == EjectionPlan::DriveAction::powerOff;
            steps_.push_back(
                callOf(plan->drive, "org.freedesktop.UDisks2.Drive", powersOff ? "PowerOff" : "Eject"));
        }
        takeNextStep();
    }

    void takeNextStep() {
        if (steps_.empty()) return end(std::nullopt);
        const auto step = steps_.front();
        steps_.pop_front();
        send(step, [this](const QDBusMessage&) { takeNextStep(); });
    }

    void end(const std::optional<EjectionError>& error) {
        deleteLater();
        done_(error);
    }

    QDBusConnection bus_;
    const std::string mountPoint_;
    const Done done_;
    std::deque<QDBusMessage> steps_;
};

}  // namespace

UdisksEjection::UdisksEjection(JobQueueFactory& queues, std::string address)
    : queues_(queues), address_(std::move(address)), bus_(QString::fromStdString(address_)) {}

std::string UdisksEjection::standardAddress() {
    const auto* address = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address ? address : "unix:path=/run/dbus/system_bus_socket";
}

void UdisksEjection::eject(const std::string& mountPoint, Done done) {
    if (!probes_) probes_ = queues_.makeQueue("system-bus");
    // The toolkit connects on this thread, and would wait long for a bus that does not respond.
    probes_->run([address = address_] { return isBusResponsive(address, probeTimeout); },
                 [this, mountPoint, done = std::move(done)](bool isResponsive) {
                     const auto bus = isResponsive ? bus_.connection() : QDBusConnection(QString());
                     if (!bus.isConnected())
                         return done(EjectionError{EjectionErrorKind::noService, "no system bus"});
                     (new Ejection(bus, mountPoint, done, &running_))->start();
                 });
}

}  // namespace tidewatch::platform
