#pragma once

#include <string>
#include <vector>

#include "base/named_string.h"
#include "base/seconds.h"
#include "core/app_seconds.h"
#include "core/usage_frame.h"
#include "core/usage_snapshot.h"
#include "platform/api/file_system.h"
#include "platform/api/frontmost_application.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Seconds booked per clock hour of a logical day and application ("hours.json"). Safe from any thread, but
/// for incrementCurrentApp, which asks for the application in front and is for the main thread.
class HourlyStore final {
public:
    /// Reads the whole file; one that is missing, unreadable or of another shape is an empty record.
    /// All three must outlive it.
    HourlyStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost);

    /// Books one second of `hour` to the application in front, if there is one that can be booked.
    void incrementCurrentApp(const HourKey& hour) { frame_.incrementCurrentApp(hour.text()); }

    /// Books one second of `hour` to `app`, whichever it is.
    void incrementApp(const AppId& app, const HourKey& hour) { frame_.incrementApp(app, hour.text()); }

    /// The applications of `hour` in ascending order of their identifiers; none for an unknown hour.
    [[nodiscard]] std::vector<AppSeconds> entries(const HourKey& hour) const {
        return frame_.entries(hour.text());
    }

    /// The sum over entries().
    [[nodiscard]] Seconds seconds(const HourKey& hour) const { return frame_.seconds(hour.text()); }

    /// A copy of everything.
    [[nodiscard]] UsageSnapshot snapshot() const { return frame_.snapshot(); }

    /// Writes the file. On failure logs and keeps memory as it is; the next flush tries again.
    void flush() { frame_.flush(); }

    [[nodiscard]] std::string dataFilePath() const { return frame_.filePath(); }

private:
    UsageFrame frame_;
};

}  // namespace tidewatch
