#include "platform/freedesktop/bus_proxy.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QProcess>
#include <functional>

#include "platform/freedesktop/bus_address.h"
#include "platform/posix/file_descriptor.h"
#include "tests/platform/freedesktop/private_bus.h"
#include "tests/platform/posix/no_descriptors_left.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;

constexpr auto timeout = 400ms;
constexpr char service[] = "com.example.Service";
constexpr char path[] = "/com/example";

/// Answers each call with its text; `mute` is never answered.
class Service final : public QDBusVirtualObject {
public:
    explicit Service(QDBusConnection bus, const QString& name = service, const QString& at = path) {
        EXPECT_TRUE(bus.registerVirtualObject(at, this));
        EXPECT_TRUE(bus.registerService(name));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (!mute) bus.send(message.createReply(answer));
        return true;
    }

    bool mute = false;
    QVariant answer = "pong";
};

class BusProxyTest : public testing::Test {
protected:
    ~BusProxyTest() override {
        for (const auto& name : connections_) QDBusConnection::disconnectFromBus(name);
    }

    static bool waitFor(const std::function<bool()>& condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 30'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return condition();
    }

    QDBusConnection connectThroughProxy() {
        connections_.push_back(QString("guarded-%1").arg(connections_.size()));
        const auto address = QString::fromStdString(proxy_.proxiedAddress(bus_.address().toStdString()));
        return QDBusConnection::connectToBus(address, connections_.back());
    }

    /// The reply to a blocking call, and how long it took.
    struct Asked {
        QDBusMessage answer;
        qint64 milliseconds = 0;
        [[nodiscard]] bool failed() const { return answer.type() == QDBusMessage::ErrorMessage; }
    };
    static Asked ask(const QDBusConnection& bus, const QString& whom, const QString& at,
                     const QString& member) {
        QElapsedTimer timer;
        timer.start();
        auto answer = bus.call(QDBusMessage::createMethodCall(whom, at, whom, member), QDBus::Block, 20'000);
        return {answer, timer.elapsed()};
    }
    static Asked askBus(const QDBusConnection& bus) {
        return ask(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "GetId");
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    PrivateBus bus_;
    BusProxy proxy_{timeout};
    QStringList connections_;
};

TEST_F(BusProxyTest, CallsRepliesAndNamesAreForwarded) {
    auto mine = connectThroughProxy();
    ASSERT_TRUE(mine.isConnected());
    EXPECT_FALSE(askBus(mine).failed());

    Service served(mine);
    auto other = bus_.connect();
    EXPECT_EQ(other.interface()->serviceOwner(service).value(), mine.baseService());
    const auto call = other.asyncCall(QDBusMessage::createMethodCall(service, path, service, "Ping"));
    ASSERT_TRUE(waitFor([&] { return call.isFinished(); }));
    EXPECT_EQ(call.reply().arguments().value(0).toString(), "pong");
}

TEST_F(BusProxyTest, CallsToAStoppedBusTimeOutOnceAndThenFailImmediatelyUntilItResumes) {
    auto mine = connectThroughProxy();
    ASSERT_FALSE(askBus(mine).failed());
    bus_.suspend();
    const auto first = askBus(mine);
    EXPECT_TRUE(first.failed());
    EXPECT_GE(first.milliseconds, timeout.count() / 2);
    EXPECT_LT(first.milliseconds, 15'000);

    QElapsedTimer many;
    many.start();
    for (int i = 0; i < 100; ++i) EXPECT_TRUE(askBus(mine).failed());
    EXPECT_LT(many.elapsed(), 100 * timeout.count() / 2);
    QElapsedTimer connecting;
    connecting.start();
    EXPECT_FALSE(connectThroughProxy().isConnected());
    EXPECT_LT(connecting.elapsed(), 15'000);

    bus_.resume();
    EXPECT_TRUE(waitFor([&] { return !askBus(mine).failed(); }));
    EXPECT_TRUE(connectThroughProxy().isConnected());
}

TEST_F(BusProxyTest, ABusStoppedBeforeTheStartBlocksNobodyAndIsFoundOnceItResumes) {
    bus_.suspend();
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(connectThroughProxy().isConnected());
    EXPECT_LT(timer.elapsed(), 15'000);
    bus_.resume();
    EXPECT_TRUE(waitFor([&] { return connectThroughProxy().isConnected(); }));
}

TEST_F(BusProxyTest, AStoppedServiceBlocksNeitherTheCallerNorTheOthers) {
    auto mine = connectThroughProxy();
    Service served(bus_.connect());
    served.mute = true;
    const auto first = ask(mine, service, path, "Ping");
    EXPECT_TRUE(first.failed());
    EXPECT_LT(first.milliseconds, 15'000);
    QElapsedTimer many;
    many.start();
    for (int i = 0; i < 100; ++i) EXPECT_TRUE(ask(mine, service, path, "Ping").failed());
    EXPECT_LT(many.elapsed(), 100 * timeout.count() / 2);
    EXPECT_FALSE(askBus(mine).failed());
}

TEST_F(BusProxyTest, AsynchronousServicesHaveNoTimeout) {
    auto mine = connectThroughProxy();
    Service notifications(bus_.connect(), "org.freedesktop.Notifications", "/org/freedesktop/Notifications");
    notifications.mute = true;
    const auto call = mine.asyncCall(
        QDBusMessage::createMethodCall("org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                                       "org.freedesktop.Notifications", "Notify"),
        static_cast<int>(3 * timeout.count()));
    QElapsedTimer timer;
    timer.start();
    ASSERT_TRUE(waitFor([&] { return call.isFinished(); }));
    EXPECT_GE(timer.elapsed(), 2 * timeout.count());
}

TEST_F(BusProxyTest, ABusThatEndsIsDisconnectedAndFoundAfterARestart) {
    auto mine = connectThroughProxy();
    bus_.stop();
    EXPECT_TRUE(waitFor([&] { return !mine.isConnected(); }));
    EXPECT_FALSE(connectThroughProxy().isConnected());
    bus_.start();
    EXPECT_TRUE(connectThroughProxy().isConnected());
}

TEST_F(BusProxyTest, TheBusOfScreenReadersIsProxiedAsWell) {
    auto mine = connectThroughProxy();
    Service launcher(bus_.connect(), "org.a11y.Bus", "/org/a11y/bus");
    launcher.answer = bus_.address();
    const auto call = mine.asyncCall(
        QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
    ASSERT_TRUE(waitFor([&] { return call.isFinished(); }));
    const auto address = call.reply().arguments().value(0).toString();
    EXPECT_EQ(address.toStdString(), proxy_.proxiedAddress(bus_.address().toStdString()));
}

TEST_F(BusProxyTest, OtherProcessesAreRejected) {
    ASSERT_TRUE(connectThroughProxy().isConnected());
    QProcess other;
    other.start("dbus-send",
                {"--bus=" + QString::fromStdString(proxy_.proxiedAddress(bus_.address().toStdString())),
                 "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
                 "org.freedesktop.DBus.GetId"});
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_NE(other.exitCode(), 0);
    EXPECT_EQ(other.readAllStandardOutput(), "");
}

TEST_F(BusProxyTest, AShortageOfDescriptorsIsWaitedOut) {
    const auto address = socketOfBus(proxy_.proxiedAddress(bus_.address().toStdString()));
    ASSERT_TRUE(address);
    {
        const test::NoDescriptorsLeft shortage;
        const FileDescriptor client(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        ASSERT_EQ(::connect(client.get(), reinterpret_cast<const sockaddr*>(&address->name), address->size),
                  0);
        ASSERT_TRUE(waitFor([&] { return shortage.refused() > 0; }));
        QElapsedTimer timer;
        timer.start();
        waitFor([&] { return timer.elapsed() > 500; });
        EXPECT_LT(shortage.refused(), 20) << "asked again and again";
    }
    EXPECT_FALSE(askBus(connectThroughProxy()).failed());
}

TEST_F(BusProxyTest, AnInvalidAddressFailsImmediately) {
    EXPECT_EQ(proxy_.proxiedAddress(""), "disabled:");
    EXPECT_EQ(proxy_.proxiedAddress("tcp:host=127.0.0.1,port=1"), "disabled:");
    EXPECT_FALSE(QDBusConnection::connectToBus("disabled:", "nowhere").isConnected());
    QDBusConnection::disconnectFromBus("nowhere");
}

}  // namespace
}  // namespace tidewatch::platform
