#include "platform/freedesktop/udisks_ejection.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/freedesktop/ejection_plan.h"
#include "platform/posix/threaded_job_queue_factory.h"
#include "platform/qt/qt_main_loop.h"
#include "tests/platform/freedesktop/private_bus.h"

namespace tidewatch::platform {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr char root[] = "/org/freedesktop/UDisks2";
constexpr char block[] = "/org/freedesktop/UDisks2/block_devices/dm_2d0";
constexpr char backing[] = "/org/freedesktop/UDisks2/block_devices/sdb1";
constexpr char drive[] = "/org/freedesktop/UDisks2/drives/Stick";

/// A disk service with one encrypted stick, mounted at /media/stick. Records what is done.
class DiskService final : public QDBusVirtualObject {
public:
    explicit DiskService(QDBusConnection bus) {
        qDBusRegisterMetaType<QList<QByteArray>>();
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        qDBusRegisterMetaType<DiskObjects>();
        EXPECT_TRUE(bus.registerVirtualObject(root, this, QDBusConnection::SubPath));
        EXPECT_TRUE(bus.registerService("org.freedesktop.UDisks2"));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const auto method = message.member().toStdString();
        if (method == "GetManagedObjects") {
            bus.send(message.createReply(managedObjects));
            return true;
        }
        calls.push_back(message.path().section('/', -1).toStdString() + "." +
                        message.interface().section('.', -1).toStdString() + "." + method);
        EXPECT_EQ(message.signature(), "a{sv}");
        const auto error = errors.find(method);
        bus.send(error == errors.end() ? message.createReply()
                                       : message.createErrorReply(error->second, "no"));
        return true;
    }

    std::vector<std::string> calls;
    std::map<std::string, QString> errors;  // by method
    QVariant managedObjects = QVariant::fromValue(stick());

private:
    static DiskObjects stick() {
        const auto path = [](const char* text) { return QVariant::fromValue(QDBusObjectPath(text)); };
        DiskObjects objects;
        objects[QDBusObjectPath(block)] = {
            {"org.freedesktop.UDisks2.Block", {{"Drive", path("/")}, {"CryptoBackingDevice", path(backing)}}},
            {"org.freedesktop.UDisks2.Filesystem",
             {{"MountPoints", QVariant::fromValue(QList<QByteArray>{QByteArray("/media/stick\0", 13)})}}}};
        objects[QDBusObjectPath(backing)] = {
            {"org.freedesktop.UDisks2.Block", {{"Drive", path(drive)}, {"CryptoBackingDevice", path("/")}}}};
        objects[QDBusObjectPath(drive)] = {{"org.freedesktop.UDisks2.Drive", {{"CanPowerOff", true}}}};
        return objects;
    }
};

class UdisksEjectionTest : public testing::Test {
protected:
    /// Runs the event loop until `condition` holds, for a minute at most.
    static bool waitFor(const std::function<bool()>& condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 60'000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return condition();
    }

    /// The error that an ejection ends with.
    std::optional<EjectionError> eject(const std::string& mountPoint = "/media/stick") {
        int ends = 0;
        std::optional<EjectionError> error;
        ejection_.eject(mountPoint, [&](const std::optional<EjectionError>& told) {
            ++ends;
            error = told;
        });
        EXPECT_EQ(ends, 0) << "told inside the call";
        EXPECT_TRUE(waitFor([&] { return ends > 0; }));
        return error;
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    QtMainLoop loop_;
    ThreadedJobQueueFactory queues_{loop_};
    PrivateBus bus_;
    // What follows the path identifies one run of the bus.
    UdisksEjection ejection_{queues_, bus_.address().section(',', 0, 0).toStdString()};
};

TEST_F(UdisksEjectionTest, UnmountsLocksAndSwitchesOffInThisOrder) {
    DiskService service(bus_.connect());
    EXPECT_FALSE(eject());
    EXPECT_THAT(service.calls,
                ElementsAre("dm_2d0.Filesystem.Unmount", "sdb1.Encrypted.Lock", "Stick.Drive.PowerOff"));
}

TEST_F(UdisksEjectionTest, AVolumeInUseStaysOn) {
    DiskService service(bus_.connect());
    service.errors["Unmount"] = "org.freedesktop.UDisks2.Error.DeviceBusy";
    const auto error = eject();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::inUse);
    EXPECT_THAT(error->message, HasSubstr("DeviceBusy"));
    EXPECT_THAT(service.calls, ElementsAre("dm_2d0.Filesystem.Unmount"));
}

TEST_F(UdisksEjectionTest, WhoeverMayNotIsTold) {
    DiskService service(bus_.connect());
    for (const auto* name : {"NotAuthorized", "NotAuthorizedCanObtain", "NotAuthorizedDismissed"}) {
        service.errors["Unmount"] = "org.freedesktop.UDisks2.Error." + QString(name);
        const auto error = eject();
        ASSERT_TRUE(error);
        EXPECT_EQ(error->kind, EjectionErrorKind::noPermission) << name;
    }
}

TEST_F(UdisksEjectionTest, AnyStepMayFail) {
    DiskService service(bus_.connect());
    service.errors["PowerOff"] = "org.freedesktop.UDisks2.Error.Failed";
    const auto error = eject();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::other);
    service.errors.clear();
    EXPECT_FALSE(eject());
}

TEST_F(UdisksEjectionTest, AVolumeThatTheServiceDoesNotKnowIsNotEjected) {
    DiskService service(bus_.connect());
    const auto error = eject("/media/other");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::noService);
    EXPECT_TRUE(service.calls.empty());
}

TEST_F(UdisksEjectionTest, AServiceThatTellsSomethingElseDoesNoHarm) {
    DiskService service(bus_.connect());
    service.managedObjects = "nothing";
    const auto error = eject();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::other);
}

TEST_F(UdisksEjectionTest, WithoutTheServiceOrTheBusThereIsAnError) {
    auto error = eject();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::noService);
    bus_.stop();
    error = eject();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->kind, EjectionErrorKind::noService);
}

TEST_F(UdisksEjectionTest, ABusThatHasStoppedBlocksNobody) {
    bus_.suspend();
    QElapsedTimer timer;
    timer.start();
    std::optional<EjectionError> error;
    ejection_.eject("/media/stick", [&](const std::optional<EjectionError>& told) { error = told; });
    EXPECT_LT(timer.elapsed(), 1500) << "the caller was kept waiting";
    EXPECT_TRUE(waitFor([&] { return error.has_value(); }));
    EXPECT_EQ(error->kind, EjectionErrorKind::noService);
    bus_.resume();
}

}  // namespace
}  // namespace tidewatch::platform
