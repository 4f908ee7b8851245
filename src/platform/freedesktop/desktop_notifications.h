#pragma once

#include <QObject>
#include <chrono>
#include <functional>

#include "platform/api/log.h"
#include "platform/api/user_notifications.h"
#include "platform/freedesktop/session_bus.h"

namespace tidewatch::platform {

/// Messages through the notification service of a freedesktop.org desktop, asked without waiting. Such a
/// desktop asks nobody whether messages may be shown, and has no older service of its own. Main thread only;
/// calls back on it.
class DesktopNotifications final : public UserNotifications {
public:
    /// Without a bus a delivery fails. A service that has not
    /// answered after `timeout` counts as failed; a message that it shows all the same, later, is then seen
    /// twice. `bus` and `log` must outlive this object.
    DesktopNotifications(SessionBus& bus, Log& log,
                         std::chrono::milliseconds timeout = std::chrono::seconds(3));

    /// Whether a service runs shows only at each delivery: it may come and go.
    [[nodiscard]] bool hasModernService() const override { return true; }

    void requestAuthorization(std::function<void(AuthorizationResult)> answered) override;
    void deliver(const UserNotification& notification, std::function<void(Status)> delivered) override;
    void deliverLegacy(const UserNotification& notification) override;
    void setLegacyService(std::function<void(const UserNotification&)> show) override;

private:
    SessionBus& bus_;
    Log& log_;
    const std::chrono::milliseconds timeout_;
    std::function<void(const UserNotification&)> showLegacy_;
    QObject pendingCalls_;  // owns what waits for an answer
};

}  // namespace tidewatch::platform
