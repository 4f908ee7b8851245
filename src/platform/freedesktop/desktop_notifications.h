#pragma once

#include <QObject>
#include <chrono>
#include <functional>

#include "platform/api/log.h"
#include "platform/api/user_notifications.h"
#include "platform/freedesktop/message_bus.h"

namespace tidewatch::platform {

/// Notifications through the org.freedesktop.Notifications service, called asynchronously. Such a desktop
/// needs no permission and has no legacy service. Main thread only, callbacks included.
class DesktopNotifications final : public UserNotifications {
public:
    /// A delivery fails without a bus, or if the service does not reply within `timeout`; if it shows the
    /// notification later nevertheless, that appears twice. `bus` and `log` must outlive this object.
    DesktopNotifications(MessageBus& bus, Log& log,
                         std::chrono::milliseconds timeout = std::chrono::seconds(3));

    /// A service may start and stop at any time, so this is only known at each delivery.
    [[nodiscard]] bool hasModernService() const override { return true; }

    void requestAuthorization(std::function<void(AuthorizationResult)> answered) override;
    void deliver(const UserNotification& notification, std::function<void(Status)> delivered) override;
    void deliverLegacy(const UserNotification& notification) override;
    void setLegacyService(std::function<void(const UserNotification&)> show) override;

private:
    MessageBus& bus_;
    Log& log_;
    const std::chrono::milliseconds timeout_;
    std::function<void(const UserNotification&)> showLegacy_;
    QObject pendingCalls_;  // owns the watchers of pending calls
};

}  // namespace tidewatch::platform
