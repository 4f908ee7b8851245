#pragma once

#include "platform/api/user_notifications.h"

namespace tidewatch {

/// The one door to the user's attention. Main thread only.
class Notifier {
public:
    virtual ~Notifier() = default;

    /// Shows `notification` at once and unconditionally. Does not wait, and does not tell failures.
    virtual void notify(const platform::UserNotification& notification) = 0;
};

}  // namespace tidewatch
