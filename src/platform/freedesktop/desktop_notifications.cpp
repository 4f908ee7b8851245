#include "platform/freedesktop/desktop_notifications.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <QVariantMap>
#include <utility>

#include "platform/freedesktop/notification_picture.h"

namespace tidewatch::platform {
namespace {

constexpr char service[] = "org.freedesktop.Notifications";
constexpr char notificationsPath[] = "/org/freedesktop/Notifications";

constexpr char applicationName[] = "Tidewatch";
constexpr char desktopFileId[] = "com.brightlooms.tidewatch";
constexpr char soundName[] = "message-new-instant";

constexpr uint replacesNone = 0;
constexpr int expiresAsTheServiceLikes = -1;

/// An icon of that name is only known where the program is installed, so that the picture goes along.
NotificationPicture programPicture() {
    constexpr int pixels = 64;
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) return {};
    return {QGuiApplication::windowIcon().pixmap(pixels).toImage()};
}

// The body of a desktop notification is markup.
QDBusMessage notifyCall(const UserNotification& notification) {
    auto call = QDBusMessage::createMethodCall(service, notificationsPath, service, "Notify");
    QVariantMap hints{{"desktop-entry", desktopFileId}, {"sound-name", soundName}};
    if (const auto picture = programPicture(); !picture.image.isNull()) {
        hints.insert("image-data", QVariant::fromValue(picture));
    }
    call << QString(applicationName) << replacesNone << QString(desktopFileId)
         << QString::fromStdString(notification.title)
         << QString::fromStdString(notification.body).toHtmlEscaped() << QStringList() << hints
         << expiresAsTheServiceLikes;
    return call;
}

Status statusOf(const QDBusPendingCall& call) {
    const QDBusPendingReply<uint> reply = call;
    if (!reply.isError()) return success();
    return Error{(reply.error().name() + ": " + reply.error().message()).toStdString()};
}

}  // namespace

DesktopNotifications::DesktopNotifications(MessageBus& bus, Log& log, std::chrono::milliseconds timeout)
    : bus_(bus), log_(log), timeout_(timeout) {
    qDBusRegisterMetaType<NotificationPicture>();
}

void DesktopNotifications::requestAuthorization(std::function<void(AuthorizationResult)> answered) {
    QMetaObject::invokeMethod(
        &pendingCalls_, [answered = std::move(answered)] { answered({.granted = true, .error = {}}); },
        Qt::QueuedConnection);
}

void DesktopNotifications::deliver(const UserNotification& notification,
                                   std::function<void(Status)> delivered) {
    const auto bus = bus_.connection();
    const auto call =
        bus.isConnected()
            ? bus.asyncCall(notifyCall(notification), static_cast<int>(timeout_.count()))
            : QDBusPendingCall::fromError(QDBusError(QDBusError::Disconnected, "there is no session bus"));
    auto* watcher = new QDBusPendingCallWatcher(call, &pendingCalls_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, delivered = std::move(delivered)] {
                         watcher->deleteLater();
                         delivered(statusOf(*watcher));
                     });
}

void DesktopNotifications::deliverLegacy(const UserNotification& notification) {
    if (showLegacy_) {
        showLegacy_(notification);
    } else {
        log_.warning("no service to show a notification: " + notification.title);
    }
}

void DesktopNotifications::setLegacyService(std::function<void(const UserNotification&)> show) {
    showLegacy_ = std::move(show);
}

}  // namespace tidewatch::platform
