#pragma once

#include <memory>
#include <string_view>

#include "analysis/goal_store.h"
#include "core/daily_store.h"
#include "platform/api/log.h"
#include "platform/api/main_loop.h"
#include "platform/api/preferences.h"
#include "platform/api/user_notifications.h"
#include "wellbeing/notifier.h"

namespace tidewatch {

/// Decides which of the desktop's two services delivers each notification, and keeps one-time notifications
/// from being repeated. Main thread only; callbacks from other threads are forwarded to it.
///
/// A notification goes through the modern service; if that fails or is unavailable, through the legacy one. A
/// user who refuses notifications gets none: a refusal is no failure.
class NotificationManager final : public Notifier {
public:
    /// All six must outlive it; `mainLoop` and `log` also any pending callback of `service`.
    NotificationManager(platform::UserNotifications& service, platform::MainLoop& mainLoop,
                        platform::Preferences& preferences, platform::Log& log, const GoalStore& goals,
                        const DailyStore& daily);
    NotificationManager(const NotificationManager&) = delete;
    NotificationManager& operator=(const NotificationManager&) = delete;

    /// Must be called once, at start-up. If permission cannot be requested, the legacy service is used until
    /// the program ends.
    void requestAuthorization();

    void notify(const platform::UserNotification& notification) override { deliver(notification); }

    /// Delivers only the first time for a `key`, across restarts. A failed delivery counts, too.
    void fireOnce(std::string_view key, const platform::UserNotification& notification);

    /// Notifies the user, once a day each, that the day has reached 80 % and 100 % of its goal, if goal
    /// notifications are enabled. Must be called after each change of the day's total.
    void checkDailyMilestones();

    /// The user's answer; false before. Deliveries do not depend on it.
    [[nodiscard]] bool authorized() const { return authorized_; }

    /// Whether all deliveries use the legacy service.
    [[nodiscard]] bool useFallback() const { return useFallback_; }

private:
    void onAuthorizationResult(const platform::AuthorizationResult& answer);
    void deliver(const platform::UserNotification& notification);

    platform::UserNotifications& service_;
    platform::MainLoop& mainLoop_;
    platform::Preferences& preferences_;
    platform::Log& log_;
    const GoalStore& goals_;
    const DailyStore& daily_;

    bool authorized_ = false;
    bool useFallback_ = false;
    // Lets a late callback detect that the manager has been destroyed.
    const std::shared_ptr<NotificationManager*> alive_;
};

}  // namespace tidewatch
