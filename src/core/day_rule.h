#pragma once

#include <memory>

#include "base/instant.h"
#include "base/tagged_string.h"
#include "core/settings.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// Decides to which logical day a moment belongs. Safe from any thread.
///
/// A logical day runs from Settings::dayStartHour to the same hour of the next calendar day and is named
/// after the calendar day on which it starts. Two zones take part: whether the hour lies before the day's
/// start is read in the zone of the moment; the date is written in the zone that was current when this
/// object was made, so that the name of a day does not change under a running program.
class DayRule final {
public:
    /// Both must outlive it.
    DayRule(const platform::Clock& clock, const Settings& settings);

    /// "yyyy-MM-dd", Gregorian.
    [[nodiscard]] DayKey dayKey(Instant instant) const;

    /// The key of the present moment.
    [[nodiscard]] DayKey today() const { return dayKey(clock_.now()); }

private:
    const platform::Clock& clock_;
    const Settings& settings_;
    const std::shared_ptr<const platform::TimeZone> namingZone_;
};

}  // namespace tidewatch
