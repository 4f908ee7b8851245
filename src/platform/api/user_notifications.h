#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// One notification, in plain text without markup.
struct UserNotification {
    std::string title;
    std::string body;
    bool operator==(const UserNotification&) const = default;
};

/// The result of requesting permission to show notifications.
struct AuthorizationResult {
    bool granted = false;
    std::optional<Error> error;  ///< set if permission could not be requested
};

/// The two ways to show notifications: a modern service, which may fail and reports that asynchronously, and
/// a legacy one without feedback. Operations are for the main thread and never block; callbacks run later on
/// any thread, once, or never if the process ends first.
class UserNotifications {
public:
    virtual ~UserNotifications() = default;

    /// Whether the modern service is available; constant for the life of the process. If not, neither
    /// requestAuthorization() nor deliver() may be called.
    [[nodiscard]] virtual bool hasModernService() const = 0;

    /// Requests permission to show notifications with sound. A refusal is not an error.
    virtual void requestAuthorization(std::function<void(AuthorizationResult)> answered) = 0;

    /// Uses the modern service, with its default sound, as a new notification that replaces no other.
    /// `delivered` reports whether the service accepted it; one suppressed by the user counts as accepted.
    virtual void deliver(const UserNotification& notification, std::function<void(Status)> delivered) = 0;

    /// Uses the legacy service, without a sound or feedback.
    virtual void deliverLegacy(const UserNotification& notification) = 0;

    /// Provides the legacy service on a desktop without one: deliverLegacy() calls `show`. Until it is set,
    /// such notifications are dropped with a log message.
    virtual void setLegacyService(std::function<void(const UserNotification&)> show) = 0;
};

}  // namespace tidewatch::platform
