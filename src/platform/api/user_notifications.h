#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// One message to the user, in plain text without markup.
struct UserNotification {
    std::string title;
    std::string body;
    bool operator==(const UserNotification&) const = default;
};

/// What came of asking for the right to show notifications.
struct AuthorizationResult {
    bool granted = false;
    std::optional<Error> error;  ///< nobody could be asked
};

/// The two ways in which a desktop shows messages: a newer service, which may fail and says so later, and an
/// older one, which is simply handed the message. Its operations are for the main thread and never wait;
/// what they call back runs later on any thread, once, or never if the process ends before.
class UserNotifications {
public:
    virtual ~UserNotifications() = default;

    /// Whether this process can use the newer service at all; the same for its life. If not, neither
    /// requestAuthorization() nor deliver() may be called.
    [[nodiscard]] virtual bool hasModernService() const = 0;

    /// Asks for the right to show messages with a sound. A refusal is an answer, not an error.
    virtual void requestAuthorization(std::function<void(AuthorizationResult)> answered) = 0;

    /// Through the newer service, with its default sound, as a message of its own that replaces no other.
    /// `delivered` tells whether the service took it; one that the user has refused counts as taken.
    virtual void deliver(const UserNotification& notification, std::function<void(Status)> delivered) = 0;

    /// Through the older service, without a sound. Whether it is seen cannot be told.
    virtual void deliverLegacy(const UserNotification& notification) = 0;

    /// On a desktop that has no older service of its own, what is to serve as one: deliverLegacy() calls
    /// `show`. Until it is given, such messages are lost, with a line in the log.
    virtual void setLegacyService(std::function<void(const UserNotification&)> show) = 0;
};

}  // namespace tidewatch::platform
