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

/// The counters that each second of work is booked to, in this order.
struct CounterStores {
    DailyStore& daily;
    AppUsageStore& apps;
    HourlyStore& hours;
    MinuteStore& minutes;
};

/// Decides once a second whether the user is at the machine and, if so, books exactly one second to every
/// counter. Main thread only.
///
/// A tick books one second at most, whatever time has passed; ticks that do not happen (a sleeping machine,
/// a blocked thread) are never made good. Every 30th tick, idle ones counted, hands the stores as they are
/// then to a queue that writes them, so that a crash costs 29 seconds at most, and what was just being
/// written. No tick waits for the disk.
class TimerEngine final {
public:
    enum class Status { active, idle };

    /// Takes up the total that the daily store holds for the present day. Does not start ticking.
    /// `disk` is the queue that writes. All that is given, null listeners apart, must outlive the engine.
    TimerEngine(const platform::Clock& clock, platform::MainLoop& mainLoop, const Settings& settings,
                const IdleMonitor& idleMonitor, const ClockKeys& keys, CounterStores stores, JobQueue& disk,
                TickListeners listeners);
    TimerEngine(const TimerEngine&) = delete;
    TimerEngine& operator=(const TimerEngine&) = delete;

    /// Ticks every second from now on, also while a menu is open. Nothing happens if it ticks already.
    void start();

    /// Ends the ticking and writes the day and all stores to the disk; returns when they are there.
    void stop();

    /// Puts the clock of the day and the session back to 0, on the disk too when it returns. The counters of
    /// applications and projects keep what they have.
    void resetToday();

    /// The present session: seconds booked since the user last came back, since the day changed or since
    /// the start, whichever came last. Keeps its value while the user is away.
    [[nodiscard]] Seconds liveSeconds() const { return liveSeconds_; }

    /// Seconds booked to the present day.
    [[nodiscard]] Seconds todaySeconds() const { return todaySeconds_; }

    [[nodiscard]] Status status() const { return status_; }

    /// Announced after a tick or a reset that changed one of the three values above, at its end.
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
    // Lets a tick that was posted find out that the engine is gone.
    const std::shared_ptr<TimerEngine*> alive_;
};

}  // namespace tidewatch
