#pragma once

#include <string>
#include <vector>

#include "base/instant.h"
#include "base/seconds.h"
#include "base/tagged_string.h"
#include "core/counter_file.h"
#include "core/day_rule.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

struct DaySeconds {
    DayKey day;
    Seconds seconds;
    bool operator==(const DaySeconds&) const = default;
};

/// Seconds booked per logical day ("today.json", which holds all days). Thread-safe.
class DailyStore final {
public:
    /// Reads the file; a missing, unreadable or malformed one yields an empty record. All three must outlive
    /// it.
    DailyStore(platform::FileSystem& files, platform::Log& log, const DayRule& dayRule);

    /// The logical day that `instant` belongs to.
    [[nodiscard]] DayKey dayKey(Instant instant) const { return dayRule_.dayKey(instant); }
    [[nodiscard]] DayKey today() const { return dayRule_.today(); }

    /// Seconds of `day`; 0 for an unknown day, without creating an entry.
    [[nodiscard]] Seconds seconds(const DayKey& day) const;

    /// Sets the seconds of `day`, in memory only.
    void set(Seconds seconds, const DayKey& day);

    /// Every day that has an entry, in ascending order.
    [[nodiscard]] std::vector<DaySeconds> allDays() const;

    /// See CounterFile.
    void flush() { file_.flush(); }
    void flushOn(JobQueue& queue) { file_.flushOn(queue); }

    [[nodiscard]] std::string directoryPath() const { return file_.directoryPath(); }
    [[nodiscard]] std::string dataFilePath() const { return file_.path(); }

private:
    const DayRule& dayRule_;
    CounterFile file_;
};

}  // namespace tidewatch
