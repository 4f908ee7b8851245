#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "base/uuid.h"
#include "core/app_counters.h"
#include "core/app_seconds.h"
#include "platform/api/file_system.h"
#include "platform/api/frontmost_application.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Seconds booked per logical day, project and application ("project_time.json"). Independent of the list of
/// projects: seconds of deleted ones are kept. Thread-safe, except incrementCurrentApp, which queries the
/// frontmost application and is for the main thread only.
class ProjectTimeStore final {
public:
    /// Reads the file; a missing, unreadable or malformed one yields an empty record. All three must outlive
    /// it.
    ProjectTimeStore(platform::FileSystem& files, platform::Log& log,
                     platform::FrontmostApplication& frontmost);

    /// Books one second of `day` to `project` and the frontmost application, if there is a bookable one.
    void incrementCurrentApp(const DayKey& day, const Uuid& project);

    /// The project's seconds per application over `days`, in descending order, ties in no particular order. A
    /// day given twice counts twice; an unknown day or project adds nothing.
    [[nodiscard]] std::vector<AppSeconds> aggregate(std::span<const DayKey> days, const Uuid& project) const;

    /// The sum over aggregate().
    [[nodiscard]] Seconds totalSeconds(std::span<const DayKey> days, const Uuid& project) const;

    /// All seconds of `day` booked to any project.
    [[nodiscard]] Seconds taggedSeconds(const DayKey& day) const;

    /// Every day that has an entry for `project`, in ascending order.
    [[nodiscard]] std::vector<DayKey> allDayKeys(const Uuid& project) const;

    /// See CounterFile.
    void flush() { counters_.file().flush(); }
    void flushOn(JobQueue& queue) { counters_.file().flushOn(queue); }

    [[nodiscard]] std::string dataFilePath() const { return counters_.file().path(); }

private:
    AppCounters counters_;
};

}  // namespace tidewatch
