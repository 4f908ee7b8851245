#include "wellbeing/notification_manager.h"

#include <fmt/format.h>

#include <cmath>
#include <string>
#include <utility>

#include "base/duration_format.h"

namespace tidewatch {
namespace {

constexpr double almostThere = 0.8;

std::string wholeHours(double hours) {
    return fmt::format("{:.0f}", std::trunc(hours));
}

}  // namespace

NotificationManager::NotificationManager(platform::UserNotifications& service, platform::MainLoop& mainLoop,
                                         platform::Preferences& preferences, platform::Log& log,
                                         const GoalStore& goals, const DailyStore& daily)
    : service_(service),
      mainLoop_(mainLoop),
      preferences_(preferences),
      log_(log),
      goals_(goals),
      daily_(daily),
      alive_(std::make_shared<NotificationManager*>(this)) {}

void NotificationManager::requestAuthorization() {
    if (!service_.hasModernService()) {
        useFallback_ = true;
        return;
    }
    service_.requestAuthorization([&mainLoop = mainLoop_, manager = std::weak_ptr(alive_)](
                                      const platform::AuthorizationResult& answer) {
        mainLoop.post([manager, answer] {
            if (const auto alive = manager.lock()) (*alive)->onAuthorizationResult(answer);
        });
    });
}

void NotificationManager::onAuthorizationResult(const platform::AuthorizationResult& answer) {
    if (answer.error) {
        log_.warning("Notif auth error: " + answer.error->message);
        useFallback_ = true;
    }
    authorized_ = answer.granted;
}

void NotificationManager::deliver(const platform::UserNotification& notification) {
    if (useFallback_ || !service_.hasModernService()) {
        service_.deliverLegacy(notification);
        return;
    }
    service_.deliver(notification, [&mainLoop = mainLoop_, &log = log_, manager = std::weak_ptr(alive_),
                                    notification](const Status& status) {
        if (status.ok()) return;
        log.warning("Notif deliver error: " + status.error().message);
        mainLoop.post([manager, notification] {
            if (const auto alive = manager.lock()) (*alive)->service_.deliverLegacy(notification);
        });
    });
}

void NotificationManager::fireOnce(std::string_view key, const platform::UserNotification& notification) {
    const auto mark = fmt::format("notif-{}", key);
    if (preferences_.boolean(mark)) return;
    preferences_.setBoolean(mark, true);
    deliver(notification);
}

void NotificationManager::checkDailyMilestones() {
    const auto& goals = goals_.settings();
    if (!goals.notificationsEnabled) return;
    const auto day = daily_.today();
    const auto seconds = daily_.seconds(day);
    const auto target = goals.dailyHours * 3600.0;
    if (!(target > 0)) return;
    const auto ratio = static_cast<double>(seconds.count()) / target;
    if (ratio >= 1.0) {
        fireOnce("goal100-" + day.text(),
                 {"Meta diaria cumplida ⭐", fmt::format("Llevas {} hoy — superaste tu meta de {}h. ¡Bien!",
                                                        hm(seconds), wholeHours(goals.dailyHours))});
    } else if (ratio >= almostThere) {
        fireOnce(
            "goal80-" + day.text(),
            {"Casi lo logras", fmt::format("Vas al 80% de tu meta diaria ({} de {}h). Un último empujón.",
                                           hm(seconds), wholeHours(goals.dailyHours))});
    }
}

}  // namespace tidewatch
