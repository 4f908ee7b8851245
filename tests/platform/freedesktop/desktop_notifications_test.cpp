#include "platform/freedesktop/desktop_notifications.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <functional>
#include <optional>
#include <vector>

#include "platform/fake/fake_log.h"
#include "tests/platform/freedesktop/private_bus.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;

const UserNotification notification{"💣 Llevas 2 horas sentado", "Hora de un descanso · Muñecas"};

/// A notification service that tests can script.
class Service final : public QDBusVirtualObject {
public:
    enum class Manner { takes, refuses, keepsSilent };

    Service(QDBusConnection bus, Manner manner) : manner_(manner) {
        EXPECT_TRUE(bus.registerVirtualObject("/org/freedesktop/Notifications", this));
        EXPECT_TRUE(bus.registerService("org.freedesktop.Notifications"));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls.push_back(message);
        if (manner_ == Manner::takes) bus.send(message.createReply(QVariant::fromValue(uint(calls.size()))));
        if (manner_ == Manner::refuses)
            bus.send(message.createErrorReply(QDBusError::LimitsExceeded, "full"));
        return true;
    }

    std::vector<QDBusMessage> calls;

private:
    const Manner manner_;
};

class DesktopNotificationsTest : public testing::Test {
protected:
    /// Runs the event loop until `condition` holds, for a minute at most.
    static bool waitFor(const std::function<bool()>& condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 60'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return condition();
    }

    std::optional<Status> deliver(DesktopNotifications& notifications) {
        std::optional<Status> status;
        QElapsedTimer timer;
        timer.start();
        notifications.deliver(notification, [&](const Status& reported) { status = reported; });
        EXPECT_LT(timer.elapsed(), 10'000) << "the caller was kept waiting";
        EXPECT_FALSE(status) << "reported inside the call";
        waitFor([&] { return status.has_value(); });
        return status;
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    FakeLog log_{[](const std::string& complaint) { ADD_FAILURE() << complaint; }};
    PrivateBus bus_;
    // What follows the path identifies one run of the bus.
    MessageBus session_{bus_.address().section(',', 0, 0)};
};

TEST_F(DesktopNotificationsTest, TheServiceIsHandedTitleBodyIconAndSound) {
    Service service(bus_.connect(), Service::Manner::takes);
    DesktopNotifications notifications(session_, log_);
    const auto status = deliver(notifications);
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->ok());
    ASSERT_EQ(service.calls.size(), 1u);
    EXPECT_EQ(service.calls[0].member(), "Notify");
    EXPECT_EQ(service.calls[0].signature(), "susssasa{sv}i");
    const auto arguments = service.calls[0].arguments();
    EXPECT_EQ(arguments[0].toString(), "Tidewatch");
    EXPECT_EQ(arguments[1].toUInt(), 0u);
    EXPECT_EQ(arguments[2].toString(), "com.brightlooms.tidewatch");
    EXPECT_EQ(arguments[3].toString(), "💣 Llevas 2 horas sentado");
    EXPECT_EQ(arguments[4].toString(), "Hora de un descanso · Muñecas");
    const auto hints = qdbus_cast<QVariantMap>(arguments[6]);
    EXPECT_EQ(hints["sound-name"].toString(), "message-new-instant");
    EXPECT_EQ(hints["desktop-entry"].toString(), "com.brightlooms.tidewatch");
    EXPECT_EQ(arguments[7].toInt(), -1);
}

TEST_F(DesktopNotificationsTest, MarkupInTheBodyIsEscaped) {
    Service service(bus_.connect(), Service::Manner::takes);
    DesktopNotifications notifications(session_, log_);
    notifications.deliver({"a < b", "<b>a & b</b>"}, [](const Status&) {});
    ASSERT_TRUE(waitFor([&] { return !service.calls.empty(); }));
    EXPECT_EQ(service.calls[0].arguments()[3].toString(), "a < b");
    EXPECT_EQ(service.calls[0].arguments()[4].toString(), "&lt;b&gt;a &amp; b&lt;/b&gt;");
}

TEST_F(DesktopNotificationsTest, EachNotificationIsANewOne) {
    Service service(bus_.connect(), Service::Manner::takes);
    DesktopNotifications notifications(session_, log_);
    ASSERT_TRUE(deliver(notifications));
    ASSERT_TRUE(deliver(notifications));
    ASSERT_EQ(service.calls.size(), 2u);
    EXPECT_EQ(service.calls[1].arguments()[1].toUInt(), 0u);
}

TEST_F(DesktopNotificationsTest, AnErrorOfTheServiceIsReported) {
    Service service(bus_.connect(), Service::Manner::refuses);
    DesktopNotifications notifications(session_, log_);
    const auto status = deliver(notifications);
    ASSERT_TRUE(status);
    ASSERT_FALSE(status->ok());
    EXPECT_EQ(status->error().message, "org.freedesktop.DBus.Error.LimitsExceeded: full");
}

TEST_F(DesktopNotificationsTest, AnUnresponsiveServiceIsReportedAfterTheTimeout) {
    Service service(bus_.connect(), Service::Manner::keepsSilent);
    DesktopNotifications notifications(session_, log_, 200ms);
    QElapsedTimer timer;
    timer.start();
    const auto status = deliver(notifications);
    EXPECT_GE(timer.elapsed(), 150);
    EXPECT_LT(timer.elapsed(), 5'000);
    ASSERT_TRUE(status);
    ASSERT_FALSE(status->ok());
    EXPECT_EQ(status->error().message.substr(0, 34), "org.freedesktop.DBus.Error.NoReply");
    EXPECT_EQ(service.calls.size(), 1u);
}

TEST_F(DesktopNotificationsTest, AMissingServiceIsReported) {
    DesktopNotifications notifications(session_, log_);
    const auto status = deliver(notifications);
    ASSERT_TRUE(status);
    ASSERT_FALSE(status->ok());
    EXPECT_EQ(status->error().message.substr(0, 41), "org.freedesktop.DBus.Error.ServiceUnknown");
}

TEST_F(DesktopNotificationsTest, AMissingBusIsReported) {
    MessageBus none("disabled:");
    DesktopNotifications notifications(none, log_);
    const auto status = deliver(notifications);
    ASSERT_TRUE(status);
    ASSERT_FALSE(status->ok());
    EXPECT_EQ(status->error().message, "org.freedesktop.DBus.Error.Disconnected: there is no session bus");
}

TEST_F(DesktopNotificationsTest, ABusThatGoesAwayIsReported) {
    auto connection = session_.connection();
    ASSERT_TRUE(connection.isConnected());
    DesktopNotifications notifications(session_, log_);
    bus_.stop();
    ASSERT_TRUE(waitFor([&] { return !connection.isConnected(); }));
    const auto status = deliver(notifications);
    ASSERT_TRUE(status);
    EXPECT_FALSE(status->ok());
}

TEST_F(DesktopNotificationsTest, ABusThatCameBackIsFoundAgain) {
    auto connection = session_.connection();
    DesktopNotifications notifications(session_, log_);
    bus_.stop();
    ASSERT_TRUE(waitFor([&] { return !connection.isConnected(); }));
    bus_.start();
    Service service(bus_.connect(), Service::Manner::takes);
    const auto status = deliver(notifications);
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->ok()) << status->error().message;
    EXPECT_EQ(service.calls.size(), 1u);
}

TEST_F(DesktopNotificationsTest, ABusThatGoesAwayWhileAMessageWaitsIsReported) {
    Service service(bus_.connect(), Service::Manner::keepsSilent);
    DesktopNotifications notifications(session_, log_);
    std::optional<Status> status;
    notifications.deliver(notification, [&](const Status& reported) { status = reported; });
    ASSERT_TRUE(waitFor([&] { return !service.calls.empty(); }));
    bus_.stop();
    ASSERT_TRUE(waitFor([&] { return status.has_value(); }));
    EXPECT_FALSE(status->ok());
}

TEST_F(DesktopNotificationsTest, NothingIsReportedAfterTheEnd) {
    Service service(bus_.connect(), Service::Manner::takes);
    bool reported = false;
    {
        DesktopNotifications notifications(session_, log_);
        notifications.deliver(notification, [&](const Status&) { reported = true; });
        notifications.requestAuthorization([&](const AuthorizationResult&) { reported = true; });
    }
    ASSERT_TRUE(waitFor([&] { return !service.calls.empty(); }));
    QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    EXPECT_FALSE(reported);
}

TEST_F(DesktopNotificationsTest, NoPermissionIsNeeded) {
    DesktopNotifications notifications(session_, log_);
    std::optional<AuthorizationResult> answer;
    notifications.requestAuthorization([&](const AuthorizationResult& given) { answer = given; });
    EXPECT_FALSE(answer) << "answered inside the call";
    ASSERT_TRUE(waitFor([&] { return answer.has_value(); }));
    EXPECT_TRUE(answer->granted);
    EXPECT_FALSE(answer->error);
}

TEST_F(DesktopNotificationsTest, TheLegacyServiceIsTheGivenOne) {
    DesktopNotifications notifications(session_, log_);
    std::vector<UserNotification> shown;
    notifications.setLegacyService([&](const UserNotification& message) { shown.push_back(message); });
    notifications.deliverLegacy(notification);
    EXPECT_EQ(shown, std::vector{notification});
}

TEST_F(DesktopNotificationsTest, WithoutALegacyServiceTheNotificationIsLoggedAsLost) {
    DesktopNotifications notifications(session_, log_);
    log_.expectWarning("no service to show a notification: 💣 Llevas 2 horas sentado");
    notifications.deliverLegacy(notification);
}

}  // namespace
}  // namespace tidewatch::platform
