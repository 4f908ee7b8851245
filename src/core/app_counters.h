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
/// their file: what the stores of such seconds share. Each of them says what its keys mean.
///
/// Safe from any thread, but for incrementCurrentApp, which asks for the application in front and is for the
/// main thread.
class AppCounters final {
public:
    /// Texts that lead to a counter, from the first one on.
    using Keys = std::span<const std::string_view>;

    /// `format` is one level deeper than the keys are many. The references must outlive it.
    AppCounters(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost,
                const CounterFormat& format);

    /// Books one second under all the keys to the application in front, if there is one that can be booked.
    void incrementCurrentApp(Keys keys);

    /// Books one second under all the keys to `app`, whichever it is.
    void incrementApp(const AppId& app, Keys keys);

    /// The applications under all the keys, in ascending order of their identifiers; none for unknown keys.
    [[nodiscard]] std::vector<AppSeconds> entries(Keys keys) const;

    /// The sum of all that lies under these keys, or under these first ones.
    [[nodiscard]] Seconds seconds(Keys keys) const;

    /// Sums per application over the days given, in no particular order; `below` are the keys under each day.
    /// A day given twice counts twice; an unknown one adds nothing.
    [[nodiscard]] std::vector<AppSeconds> aggregate(std::span<const DayKey> days, Keys below = {}) const;

    /// Every day that has an entry under the keys below it, in ascending order.
    [[nodiscard]] std::vector<DayKey> days(Keys below = {}) const;

    /// A copy of everything. Of stores with one key only.
    [[nodiscard]] UsageSnapshot snapshot() const;

    [[nodiscard]] CounterFile& file() { return file_; }
    [[nodiscard]] const CounterFile& file() const { return file_; }

private:
    platform::FrontmostApplication& frontmost_;
    CounterFile file_;
};

}  // namespace tidewatch
