#pragma once

#include <memory>

#include "base/instant.h"
#include "base/tagged_string.h"
#include "core/settings.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// Maps an instant to its logical day. Thread-safe.
///
/// A logical day runs from Settings::dayStartHour to the same hour of the next calendar day and is named
/// after the calendar day on which it starts. Two time zones are involved: whether the hour is before the
/// day's start is determined in the current zone; the date is formatted in the zone that was current when
/// this object was created, so that the name of a day does not change while the program runs.
class DayRule final {
public:
    /// Both must outlive it.
    DayRule(const platform::Clock& clock, const Settings& settings);

    /// "yyyy-MM-dd", Gregorian.
    [[nodiscard]] DayKey dayKey(Instant instant) const;

    /// The key of the current instant.
    [[nodiscard]] DayKey today() const { return dayKey(clock_.now()); }

private:
    const platform::Clock& clock_;
    const Settings& settings_;
    const std::shared_ptr<const platform::TimeZone> namingZone_;
};

}  // namespace tidewatch
