#pragma once

#include <memory>

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "analysis/reward_engine.h"
#include "base/serial_queue.h"
#include "classification/app_info_resolver.h"
#include "classification/category_store.h"
#include "classification/productivity_score.h"
#include "core/app_usage_store.h"
#include "core/broadcaster.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/hourly_store.h"
#include "core/idle_monitor.h"
#include "core/minute_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/api/platform.h"
#include "projects/active_project_booking.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "wellbeing/break_reminder.h"
#include "wellbeing/game_gate.h"
#include "wellbeing/notification_manager.h"

namespace tidewatch {

/// Every store and service that works without a screen, built once, in the order in which they need each
/// other. For the composition root alone, which hands each part to those that use it: nothing else takes the
/// whole. Main thread only.
struct Services final {
    /// `platform` must outlive this object.
    explicit Services(const platform::Platform& platform);
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

    [[nodiscard]] CounterStores counters() { return {days, apps, hours, minutes}; }

    Broadcaster broadcaster;
    Settings settings;
    DayRule dayRule;
    ClockKeys keys;
    IdleMonitor idleMonitor;
    DailyStore days;
    AppUsageStore apps;
    HourlyStore hours;
    MinuteStore minutes;
    CategoryStore categories;
    AppInfoResolver appInfo;
    ProductivityScorer scorer;
    ProjectStore projects;
    ProjectTimeStore projectTime;
    ActiveProjectBooking projectBooking;
    GoalStore goals;
    GoalEvaluator goalEvaluator;
    RewardEngine rewards;
    NotificationManager notifications;
    GameGate gameGate;
    BreakReminder breakReminder;
    /// Writes the stores; it ends before any of them.
    std::unique_ptr<JobQueue> disk;
    TimerEngine engine;
    ThemeRegistry themes;
    ThemeController theme;
};

}  // namespace tidewatch
