#pragma once

#include <string>
#include <vector>

#include "base/named_string.h"
#include "core/app_seconds.h"
#include "core/usage_frame.h"
#include "core/usage_snapshot.h"
#include "platform/api/file_system.h"
#include "platform/api/frontmost_application.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Seconds booked per ten minutes of a logical day and application ("minutes.json"). Safe from any thread,
/// but for incrementCurrentApp, which asks for the application in front and is for the main thread.
class MinuteStore final {
public:
    /// Reads the whole file; one that is missing, unreadable or of another shape is an empty record.
    /// All three must outlive it.
    MinuteStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost);

    /// Books one second of `bucket` to the application in front, if there is one that can be booked.
    void incrementCurrentApp(const BucketKey& bucket) { frame_.incrementCurrentApp(bucket.text()); }

    /// Books one second of `bucket` to `app`, whichever it is.
    void incrementApp(const AppId& app, const BucketKey& bucket) { frame_.incrementApp(app, bucket.text()); }

    /// The applications of `bucket` in ascending order of their identifiers; none for an unknown bucket.
    [[nodiscard]] std::vector<AppSeconds> entries(const BucketKey& bucket) const {
        return frame_.entries(bucket.text());
    }

    /// A copy of everything.
    [[nodiscard]] UsageSnapshot snapshot() const { return frame_.snapshot(); }

    /// Writes the file. On failure logs and keeps memory as it is; the next flush tries again.
    void flush() { frame_.flush(); }

    [[nodiscard]] std::string dataFilePath() const { return frame_.filePath(); }

private:
    UsageFrame frame_;
};

}  // namespace tidewatch
