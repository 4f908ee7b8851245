#pragma once

#include <string>

#include "analysis/goal_settings.h"
#include "base/signal.h"
#include "platform/api/file_system.h"

namespace tidewatch {

/// The user's goals and their file, "goals.json" in the data directory. Main thread only.
class GoalStore final {
public:
    /// Makes the data directory and reads the file. One that is missing or unreadable, or that lacks any of
    /// the five values, gives all defaults and stays as it is until the next save(). Failures are silent.
    /// `files` must outlive it.
    explicit GoalStore(platform::FileSystem& files);
    GoalStore(const GoalStore&) = delete;
    GoalStore& operator=(const GoalStore&) = delete;

    [[nodiscard]] const GoalSettings& settings() const { return settings_; }

    /// In memory only: who changes goals calls save() afterwards.
    void setSettings(const GoalSettings& settings);

    /// Writes the file. A failure is silent and leaves memory as it is.
    void save();

    [[nodiscard]] const std::string& filePath() const { return filePath_; }

    /// Announced after a change of the settings.
    Signal<> changed;

private:
    platform::FileSystem& files_;
    const std::string filePath_;
    GoalSettings settings_;
};

}  // namespace tidewatch
