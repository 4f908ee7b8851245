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

/// Decides which of the desktop's two services carries each message, and keeps messages that are meant once
/// from being repeated. Main thread only; what the services report from other threads is brought there.
///
/// A message goes through the newer service; if that fails, or cannot be used at all, through the older one.
/// A user who refuses notifications gets none: a refusal is no failure.
class NotificationManager final : public Notifier {
public:
    /// All six must outlive it; `mainLoop` and `log` also what `service` still has to report.
    NotificationManager(platform::UserNotifications& service, platform::MainLoop& mainLoop,
                        platform::Preferences& preferences, platform::Log& log, const GoalStore& goals,
                        const DailyStore& daily);
    NotificationManager(const NotificationManager&) = delete;
    NotificationManager& operator=(const NotificationManager&) = delete;

    /// To be called once, at the start. If nobody can be asked, the older service serves until the end of
    /// the run.
    void requestAuthorization();

    void notify(const platform::UserNotification& notification) override { deliver(notification); }

    /// Delivers only the first time that `key` is seen, across restarts. A message counts as seen even if
    /// its delivery fails.
    void fireOnce(std::string_view key, const platform::UserNotification& notification);

    /// Tells the user, once a day each, that the day has reached 80 % and all of its goal, if goals are to
    /// be told. To be called after each writing of the day's total.
    void checkDailyMilestones();

    /// What the user answered; false before. Consulted by no delivery.
    [[nodiscard]] bool authorized() const { return authorized_; }

    /// All deliveries go through the older service.
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
    // Lets a late report of a service find out that the manager is gone.
    const std::shared_ptr<NotificationManager*> alive_;
};

}  // namespace tidewatch
