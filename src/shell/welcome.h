#pragma once

#include "wellbeing/notification_manager.h"

namespace tidewatch {

/// Tells the user, once ever, what is counted, where to click, and that the data stays on the machine.
void welcome(NotificationManager& notifications, bool hasTray);

}  // namespace tidewatch
