#pragma once

#include <string>

#include "analysis/goal_settings.h"
#include "base/signal.h"
#include "core/kept_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The user's goals and their file, "goals.json" in the data directory. Main thread only.
class GoalStore final {
public:
    /// Makes the data directory and reads the file. One that is missing or unreadable, or that lacks any of
    /// the five values, gives all defaults and stays as it is until the next save(), which sets it aside.
    /// Failures are silent. `files` and `log`, which is told of a file that was set aside, must outlive it.
    GoalStore(platform::FileSystem& files, platform::Log& log);
    GoalStore(const GoalStore&) = delete;
    GoalStore& operator=(const GoalStore&) = delete;

    [[nodiscard]] const GoalSettings& settings() const { return settings_; }

    /// In memory only: who changes goals calls save() afterwards.
    void setSettings(const GoalSettings& settings);

    /// Writes the file. A failure is silent and leaves memory as it is.
    void save();

    /// Lets `disk` write the file again if it has gone missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { file_.restoreOn(disk); }

    [[nodiscard]] const std::string& filePath() const { return file_.path(); }

    /// Announced after a change of the settings.
    Signal<> changed;

private:
    KeptFile file_;
    GoalSettings settings_;
};

}  // namespace tidewatch
