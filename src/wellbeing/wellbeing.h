#pragma once

#include "analysis/goal_store.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "wellbeing/break_reminder.h"
#include "wellbeing/game_gate.h"
#include "wellbeing/notification_manager.h"

namespace tidewatch {

/// Notifications, the game gate and the break reminder, built together. Main thread only.
struct Wellbeing final {
    /// All of it must outlive the bundle; `mainLoop` and `log` also any pending callback of `service`.
    struct Dependencies {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        platform::Preferences& preferences;
        platform::Log& log;
        platform::UserNotifications& service;
        const DayRule& dayRule;
        const DailyStore& days;
        const GoalStore& goals;
    };

    explicit Wellbeing(const Dependencies& dependencies)
        : notifications(dependencies.service, dependencies.mainLoop, dependencies.preferences,
                        dependencies.log, dependencies.goals, dependencies.days),
          gameGate(dependencies.clock, dependencies.preferences, notifications),
          breakReminder(dependencies.dayRule, dependencies.mainLoop, notifications) {}

    NotificationManager notifications;
    GameGate gameGate;
    BreakReminder breakReminder;
};

}  // namespace tidewatch
