#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/tagged_string.h"
#include "core/kept_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The categories of the desktop menu standard that each application registered when it was first met
/// ("registered.json"). What it registered is kept, and not what that counts as: a better table of ours
/// reaches applications that are long known. Main thread only.
class FirstRegistrations final {
public:
    using Words = std::vector<std::string>;

    /// Reads the file; one that is missing or cannot be read to the last value is empty, and is set aside
    /// before the first write. Both must outlive it.
    FirstRegistrations(platform::FileSystem& files, platform::Log& log);

    /// Null for an application not remembered. Valid until the next call of remember().
    [[nodiscard]] const Words* find(const AppId& app) const;

    /// In memory; flush() brings it to the disk.
    void remember(const AppId& app, Words words);

    /// Writes the file if something was remembered since it was last tried. On failure the log tells, and the
    /// next application that is remembered tries again.
    void flush();

    /// Lets `disk` write the file again if it has gone missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { file_.restoreOn(disk); }

private:
    KeptFile file_;
    std::map<AppId, Words> words_;
    bool changed_ = false;
};

}  // namespace tidewatch
