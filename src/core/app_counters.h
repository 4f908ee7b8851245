#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "core/app_seconds.h"
#include "core/counter_file.h"
#include "core/usage_snapshot.h"
#include "platform/api/frontmost_application.h"

namespace tidewatch {

/// Seconds per application under one key (a day, an hour, ten minutes) or two (a day and a project), and
/// their file: the common part of the stores of such seconds. Each store defines the meaning of its keys.
///
/// Thread-safe, except incrementCurrentApp, which queries the frontmost application and is for the main
/// thread only.
class AppCounters final {
public:
    /// The path to a counter, or a prefix of it.
    using Keys = std::span<const std::string_view>;

    /// `format.depth` is the number of keys plus one. The references must outlive it.
    AppCounters(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost,
                const CounterFormat& format);

    /// Books one second under `keys` to the frontmost application, if there is a bookable one.
    void incrementCurrentApp(Keys keys);

    /// Books one second under `keys` to `app`, whatever it is.
    void incrementApp(const AppId& app, Keys keys);

    /// The applications under `keys`, ordered by identifier; empty for unknown keys.
    [[nodiscard]] std::vector<AppSeconds> entries(Keys keys) const;

    /// The sum of all counters under `keys`, which may be a prefix.
    [[nodiscard]] Seconds seconds(Keys keys) const;

    /// Sums per application over `days`, unordered; `below` are the keys under each day. A day given twice
    /// counts twice; an unknown one adds nothing.
    [[nodiscard]] std::vector<AppSeconds> aggregate(std::span<const DayKey> days, Keys below = {}) const;

    /// Every day that has an entry under the keys `below`, in ascending order.
    [[nodiscard]] std::vector<DayKey> days(Keys below = {}) const;

    /// A snapshot of all counters. For stores with one key only.
    [[nodiscard]] UsageSnapshot snapshot() const;

    [[nodiscard]] CounterFile& file() { return file_; }
    [[nodiscard]] const CounterFile& file() const { return file_; }

private:
    platform::FrontmostApplication& frontmost_;
    CounterFile file_;
};

}  // namespace tidewatch
