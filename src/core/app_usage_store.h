#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/named_string.h"
#include "core/app_seconds.h"
#include "core/store_frame.h"
#include "platform/api/file_system.h"
#include "platform/api/frontmost_application.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Seconds booked per logical day and application ("apps.json"). Safe from any thread, but for
/// incrementCurrentApp, which asks for the application in front and is for the main thread.
class AppUsageStore final {
public:
    /// Reads the whole file; one that is missing, unreadable or of another shape is an empty record.
    /// All three must outlive it.
    AppUsageStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost);

    /// Books one second of `day` to the application in front, if there is one that can be booked.
    void incrementCurrentApp(const DayKey& day);

    /// Books one second of `day` to `app`, whichever it is.
    void incrementApp(const AppId& app, const DayKey& day);

    /// Sums per application over the days given, most seconds first, equal ones in no particular order.
    /// A day given twice counts twice; an unknown one adds nothing.
    [[nodiscard]] std::vector<AppSeconds> aggregate(std::span<const DayKey> days) const;

    /// Every day that has an entry, in ascending order.
    [[nodiscard]] std::vector<DayKey> allDayKeys() const;

    /// Writes the file. On failure logs and keeps memory as it is; the next flush tries again.
    void flush() { frame_.flush(); }

    [[nodiscard]] std::string dataFilePath() const { return frame_.filePath(); }

private:
    platform::FrontmostApplication& frontmost_;
    StoreFrame frame_;
};

}  // namespace tidewatch
