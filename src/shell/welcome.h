#pragma once

#include "wellbeing/notification_manager.h"

namespace tidewatch {

/// Tells the user, once ever, what is counted, where the icon is if there is a tray, and that the data stays
/// here.
void welcome(NotificationManager& notifications, bool hasTray);

}  // namespace tidewatch
