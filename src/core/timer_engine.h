#pragma once

#include <memory>

#include "base/seconds.h"
#include "base/signal.h"
#include "base/tagged_string.h"
#include "core/app_usage_store.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/hourly_store.h"
#include "core/idle_monitor.h"
#include "core/minute_store.h"
#include "core/settings.h"
#include "core/tick_listeners.h"
#include "platform/api/clock.h"
#include "platform/api/main_loop.h"

namespace tidewatch {

/// The stores that each second of work is booked to, in this order.
struct CounterStores {
    DailyStore& daily;
    AppUsageStore& apps;
    HourlyStore& hours;
    MinuteStore& minutes;
};

/// Decides once a second whether the user is at the machine and, if so, books exactly one second to every
/// counter. Main thread only.
///
/// A tick books at most one second, however much time has passed; missed ticks (a sleeping machine, a blocked
/// thread) are not caught up. Every 30th tick, idle ones included, queues snapshots of the stores for
/// writing, so that a crash loses at most 29 seconds and what was being written. No tick waits for the disk.
class TimerEngine final {
public:
    enum class Status { active, idle };

    /// Loads the current day's total from the daily store. Does not start ticking. `disk` is the queue for
    /// writing. All arguments, except null listeners, must outlive the engine.
    TimerEngine(const platform::Clock& clock, platform::MainLoop& mainLoop, const Settings& settings,
                const IdleMonitor& idleMonitor, const ClockKeys& keys, CounterStores stores, JobQueue& disk,
                TickListeners listeners);
    TimerEngine(const TimerEngine&) = delete;
    TimerEngine& operator=(const TimerEngine&) = delete;

    /// Starts ticking every second, even while a menu is open. No effect if already started.
    void start();

    /// Stops ticking and writes the day and all stores to disk synchronously.
    void stop();

    /// Resets the day and the session to 0, and writes the day to disk synchronously. The counters of
    /// applications and projects are unchanged.
    void resetToday();

    /// The current session: seconds booked since the user last returned, the day changed or the engine
    /// started, whichever was last. Keeps its value while the user is away.
    [[nodiscard]] Seconds liveSeconds() const { return liveSeconds_; }

    /// Seconds booked to the current day.
    [[nodiscard]] Seconds todaySeconds() const { return todaySeconds_; }

    [[nodiscard]] Status status() const { return status_; }

    /// Emitted at the end of a tick or a reset that changed one of the three values above.
    Signal<> changed;

private:
    void tick();
    void checkDay();
    void moveToDay(const DayKey& day);
    void bookSecond();
    void bookToGames();
    void bookToCurrentApp();
    void writeDay();
    void flushStores();

    const platform::Clock& clock_;
    platform::MainLoop& mainLoop_;
    const Settings& settings_;
    const IdleMonitor& idleMonitor_;
    const ClockKeys& keys_;
    const CounterStores stores_;
    JobQueue& disk_;
    const TickListeners listeners_;
    const AppId games_;

    Seconds liveSeconds_;
    Seconds todaySeconds_;
    Status status_ = Status::active;
    std::unique_ptr<platform::RepeatingTimer> ticker_;
    DayKey currentDay_;
    bool wasIdle_ = false;
    int ticksSinceFlush_ = 0;
    // Lets a posted tick detect that the engine has been destroyed.
    const std::shared_ptr<TimerEngine*> alive_;
};

}  // namespace tidewatch
