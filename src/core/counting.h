#pragma once

#include "core/app_usage_store.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/hourly_store.h"
#include "core/idle_monitor.h"
#include "core/minute_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"

namespace tidewatch {

/// The settings, the day rule and the four counter stores, built together. Main thread only.
struct Counting {
    /// All of it must outlive the bundle.
    struct Dependencies {
        const platform::Clock& clock;
        platform::FileSystem& files;
        platform::Log& log;
        platform::Preferences& preferences;
        const platform::InputActivity& inputActivity;
        platform::FrontmostApplication& frontmost;
    };

    explicit Counting(const Dependencies& dependencies)
        : settings(dependencies.preferences),
          dayRule(dependencies.clock, settings),
          keys(dependencies.clock, settings, dayRule),
          idleMonitor(dependencies.inputActivity),
          days(dependencies.files, dependencies.log, dayRule),
          apps(dependencies.files, dependencies.log, dependencies.frontmost),
          hours(dependencies.files, dependencies.log, dependencies.frontmost),
          minutes(dependencies.files, dependencies.log, dependencies.frontmost) {}

    [[nodiscard]] CounterStores stores() { return {days, apps, hours, minutes}; }

    Settings settings;
    DayRule dayRule;
    ClockKeys keys;
    IdleMonitor idleMonitor;
    DailyStore days;
    AppUsageStore apps;
    HourlyStore hours;
    MinuteStore minutes;
};

}  // namespace tidewatch
