#include "wellbeing/break_reminder.h"

#include <fmt/format.h>

#include "base/duration_format.h"

namespace tidewatch {
namespace {

constexpr Seconds longDayAbove(8 * 3600);
constexpr Seconds sittingOnALongDay(3600);
constexpr Seconds sittingOnAnOrdinaryDay(2 * 3600);

struct NotificationTexts {
    const StretchTexts& stretch;

    platform::UserNotification operator()(const LongDay& reason) const {
        return {fmt::format("💣 {}h trabajadas hoy — toca pararse", reason.hours),
                fmt::format("Jornada larga · {}: {}", stretch.title, stretch.motivational)};
    }
    platform::UserNotification operator()(const TwoHours&) const {
        return {"💣 Llevas 2 horas sentado",
                fmt::format("Hora de un descanso · {}: {}", stretch.title, stretch.motivational)};
    }
};

}  // namespace

BreakReminder::BreakReminder(const DayRule& dayRule, platform::MainLoop& mainLoop, Notifier& notifier)
    : dayRule_(dayRule),
      mainLoop_(mainLoop),
      notifier_(notifier),
      lastResetDay_(dayRule.today()),
      alive_(std::make_shared<Notifier*>(&notifier)) {}

void BreakReminder::tickActiveSecond(Seconds totalToday) {
    startDayIfNew();
    sitting_ += Seconds(1);
    const auto length = totalToday > longDayAbove ? DayLength::longDay : DayLength::ordinary;
    const auto threshold = length == DayLength::longDay ? sittingOnALongDay : sittingOnAnOrdinaryDay;
    if (sitting_ >= threshold && !alertActive_) triggerAlert(length, totalToday);
    changed.emit();
}

void BreakReminder::startDayIfNew() {
    auto today = dayRule_.today();
    if (today == lastResetDay_) return;
    lastResetDay_ = std::move(today);
    alertsToday_ = 0;
    sitting_ = Seconds();
}

void BreakReminder::triggerAlert(DayLength length, Seconds totalToday) {
    const auto stretches = allStretches();
    stretch_ = stretches[static_cast<std::size_t>(alertsToday_) % stretches.size()];
    ++alertsToday_;
    if (length == DayLength::longDay) {
        reason_ = LongDay{totalToday.count() / 3600};
    } else {
        reason_ = TwoHours();
    }
    alertActive_ = true;
    postNotification();
}

// Posted, so that listeners have seen the alert before the notification is shown.
void BreakReminder::postNotification() {
    mainLoop_.post([alive = std::weak_ptr(alive_),
                    notification = std::visit(NotificationTexts{textsOf(stretch_)}, reason_)] {
        if (const auto notifier = alive.lock()) (*notifier)->notify(notification);
    });
}

void BreakReminder::userWentIdle() {
    if (sitting_ == Seconds()) return;
    sitting_ = Seconds();
    changed.emit();
}

void BreakReminder::dismissAlert() {
    alertActive_ = false;
    sitting_ = Seconds();
    changed.emit();
}

std::string BreakReminder::sittingDisplay() const {
    return formatPadded(sitting_);
}

}  // namespace tidewatch
