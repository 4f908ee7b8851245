#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/tagged_string.h"
#include "core/restorable_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The desktop menu categories that each application had registered when it was first seen
/// ("registered.json"). Stores the registration rather than our category, so that an improved table applies
/// to known applications. Main thread only.
class FirstRegistrations final {
public:
    using Words = std::vector<std::string>;

    /// Reads the file; a missing or invalid one is treated as empty, and set aside before the first write.
    /// Both must outlive it.
    FirstRegistrations(platform::FileSystem& files, platform::Log& log);

    /// Null for an unknown application. Valid until the next call of remember().
    [[nodiscard]] const Words* find(const AppId& app) const;

    /// In memory; flush() writes it.
    void remember(const AppId& app, Words words);

    /// Writes the file if an application was added since the last attempt. A failure is logged, and retried
    /// with the next application added.
    void flush();

    /// Rewrites the file on `disk` if it is missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { file_.restoreOn(disk); }

private:
    RestorableFile file_;
    std::map<AppId, Words> words_;
    bool changed_ = false;
};

}  // namespace tidewatch
