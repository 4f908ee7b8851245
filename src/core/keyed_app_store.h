#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "core/app_counters.h"
#include "core/app_seconds.h"
#include "core/usage_snapshot.h"
#include "platform/api/file_system.h"
#include "platform/api/frontmost_application.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The common interface of the stores of seconds per `Key` (a day, an hour, ten minutes) and application.
/// Thread-safe, except incrementCurrentApp, which queries the frontmost application and is for the main
/// thread only.
template <class Key>
class KeyedAppStore {
public:
    /// Books one second of `key` to the frontmost application, if there is a bookable one.
    void incrementCurrentApp(const Key& key) { counters_.incrementCurrentApp(path(key)); }

    /// Books one second of `key` to `app`, whatever it is.
    void incrementApp(const AppId& app, const Key& key) { counters_.incrementApp(app, path(key)); }

    /// The applications of `key`, ordered by identifier; empty for an unknown key.
    [[nodiscard]] std::vector<AppSeconds> entries(const Key& key) const {
        return counters_.entries(path(key));
    }

    /// The sum over entries().
    [[nodiscard]] Seconds seconds(const Key& key) const { return counters_.seconds(path(key)); }

    /// A snapshot of all counters.
    [[nodiscard]] UsageSnapshot snapshot() const { return counters_.snapshot(); }

    /// See CounterFile.
    void flush() { counters_.file().flush(); }
    void flushOn(JobQueue& queue) { counters_.file().flushOn(queue); }

    [[nodiscard]] std::string dataFilePath() const { return counters_.file().path(); }

protected:
    /// Reads the file; a missing, unreadable or malformed one yields an empty record. All three must outlive
    /// it.
    KeyedAppStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost,
                  std::string_view fileName, std::string_view flushFailed)
        : counters_(files, log, frontmost, {fileName, 2, flushFailed}) {}
    ~KeyedAppStore() = default;

    [[nodiscard]] const AppCounters& counters() const { return counters_; }

private:
    static std::array<std::string_view, 1> path(const Key& key) { return {key.text()}; }

    AppCounters counters_;
};

}  // namespace tidewatch
