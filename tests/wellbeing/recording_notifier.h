#pragma once

#include <vector>

#include "wellbeing/notifier.h"

namespace tidewatch::test {

/// Records notifications.
class RecordingNotifier final : public Notifier {
public:
    void notify(const platform::UserNotification& notification) override { shown.push_back(notification); }

    std::vector<platform::UserNotification> shown;
};

}  // namespace tidewatch::test
