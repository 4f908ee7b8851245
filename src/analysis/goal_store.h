#pragma once

#include <string>

#include "analysis/goal_settings.h"
#include "base/signal.h"
#include "core/restorable_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The user's goals and their file, "goals.json" in the data directory. Main thread only.
class GoalStore final {
public:
    /// Creates the data directory and reads the file. A missing, unreadable or incomplete file yields all
    /// defaults and is kept until the next save(), which sets it aside. Failures are silent; only files set
    /// aside are logged. `files` and `log` must outlive it.
    GoalStore(platform::FileSystem& files, platform::Log& log);
    GoalStore(const GoalStore&) = delete;
    GoalStore& operator=(const GoalStore&) = delete;

    [[nodiscard]] const GoalSettings& settings() const { return settings_; }

    /// In memory only: call save() afterwards.
    void setSettings(const GoalSettings& settings);

    /// Writes the file. Failures are silent and leave the settings unchanged.
    void save();

    /// Rewrites the file on `disk` if it is missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { file_.restoreOn(disk); }

    [[nodiscard]] const std::string& filePath() const { return file_.path(); }

    /// Emitted after a change of the settings.
    Signal<> changed;

private:
    RestorableFile file_;
    GoalSettings settings_;
};

}  // namespace tidewatch
