#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/api/preferences.h"
#include "platform/api/screens.h"

namespace tidewatch {

/// The user's settings, each with its default and range. Nothing is cached: every read and write goes to the
/// preferences. Reads are thread-safe, writes are for the main thread. A stored value of another type is
/// converted by the preferences, then the same range applies.
class Settings final {
public:
    /// `preferences` must outlive it.
    explicit Settings(platform::Preferences& preferences) : preferences_(preferences) {}

    /// "ochre" if never set. Any string may be stored; no such theme need exist.
    [[nodiscard]] std::string activeThemeId() const;
    void setActiveThemeId(std::string_view id);

    /// Top left corner of the floating clock; nullopt unless both coordinates are stored.
    [[nodiscard]] std::optional<platform::Point> windowOrigin() const;
    void setWindowOrigin(std::optional<platform::Point> origin);

    /// Whether the floating clock is shown; true if never set.
    [[nodiscard]] bool windowVisible() const;
    void setWindowVisible(bool visible);

    /// Scale of the floating clock, above 0; 0.25 if never set or not above 0.
    [[nodiscard]] double sizeScale() const;
    void setSizeScale(double scale);

    /// Seconds without input after which the user counts as away, above 0; 300 if never set or not above 0.
    [[nodiscard]] std::int64_t idleThresholdSeconds() const;
    void setIdleThresholdSeconds(std::int64_t seconds);

    /// Clock hour at which a logical day starts, 0 to 23; 0 if never set. Clamped both when stored and when
    /// read.
    [[nodiscard]] int dayStartHour() const;
    void setDayStartHour(int hour);

private:
    platform::Preferences& preferences_;
};

}  // namespace tidewatch
