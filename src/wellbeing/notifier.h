#pragma once

#include "platform/api/user_notifications.h"

namespace tidewatch {

/// Shows notifications to the user. Main thread only.
class Notifier {
public:
    virtual ~Notifier() = default;

    /// Shows `notification` immediately and unconditionally. Does not block; failures are not reported.
    virtual void notify(const platform::UserNotification& notification) = 0;
};

}  // namespace tidewatch
