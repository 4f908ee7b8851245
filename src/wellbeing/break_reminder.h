#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "base/seconds.h"
#include "base/signal.h"
#include "base/tagged_string.h"
#include "core/day_rule.h"
#include "core/tick_listeners.h"
#include "platform/api/main_loop.h"
#include "wellbeing/notifier.h"
#include "wellbeing/stretch.h"

namespace tidewatch {

/// An hour of sitting on a long day; `hours` are the whole hours worked when the alert was raised.
struct LongDay {
    std::int64_t hours = 0;
    bool operator==(const LongDay&) const = default;
};

/// Two hours of sitting on a day of normal length.
struct TwoHours {
    bool operator==(const TwoHours&) const = default;
};

/// Why a break alert was raised.
using BreakReason = std::variant<LongDay, TwoHours>;

/// Measures how long the user has been sitting without an idle pause and suggests a break: after two hours,
/// and after each hour once more than eight have been worked on the day. An alert stays active until it is
/// dismissed; neither time nor absence ends it, and no other is raised meanwhile. Nothing is persisted. Main
/// thread only.
class BreakReminder final : public BreakListener {
public:
    /// All three must outlive it.
    BreakReminder(const DayRule& dayRule, platform::MainLoop& mainLoop, Notifier& notifier);
    BreakReminder(const BreakReminder&) = delete;
    BreakReminder& operator=(const BreakReminder&) = delete;

    /// Counts the second and raises an alert when due. The notification is posted to the main loop. Detects a
    /// change of day, which resets the counts and keeps an active alert.
    void tickActiveSecond(Seconds totalToday) override;

    /// Ends the sitting; an active alert stays active.
    void userWentIdle() override;

    /// Dismisses the alert and restarts the sitting.
    void dismissAlert();

    /// Active seconds since the last idle tick, dismissal or change of day.
    [[nodiscard]] Seconds sittingSeconds() const { return sitting_; }

    /// "59m 59s" or "1h 00m".
    [[nodiscard]] std::string sittingDisplay() const;

    [[nodiscard]] bool alertActive() const { return alertActive_; }

    /// Of the active or else the last alert; initially Stretch::neck and TwoHours.
    [[nodiscard]] Stretch stretch() const { return stretch_; }
    [[nodiscard]] const BreakReason& reason() const { return reason_; }

    /// Alerts raised since the last change of day.
    [[nodiscard]] std::int64_t alertsToday() const { return alertsToday_; }

    /// The day that the counts belong to.
    [[nodiscard]] const DayKey& lastResetDay() const { return lastResetDay_; }

    /// Emitted at the end of every operation that changed the sitting or the alert.
    Signal<> changed;

private:
    enum class DayLength { ordinary, longDay };

    void startDayIfNew();
    void triggerAlert(DayLength length, Seconds totalToday);
    void postNotification();

    const DayRule& dayRule_;
    platform::MainLoop& mainLoop_;
    Notifier& notifier_;

    Seconds sitting_;
    bool alertActive_ = false;
    Stretch stretch_ = Stretch::neck;
    BreakReason reason_ = TwoHours();
    std::int64_t alertsToday_ = 0;
    DayKey lastResetDay_;
    // Lets a posted notification detect that the reminder has been destroyed.
    const std::shared_ptr<Notifier*> alive_;
};

}  // namespace tidewatch
