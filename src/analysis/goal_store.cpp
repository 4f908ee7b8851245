#include "analysis/goal_store.h"

#include <utility>

#include "analysis/goal_settings_json.h"
#include "core/data_directory.h"

namespace tidewatch {

GoalStore::GoalStore(platform::FileSystem& files)
    : files_(files), filePath_(dataDirectory(files) + "/goals.json") {
    // A directory that cannot be made shows as a file that can be neither read nor written.
    (void)files_.createDirectories(dataDirectory(files_));
    if (auto text = files_.readWhole(filePath_)) {
        settings_ = readGoalSettings(std::move(text).value()).value_or(GoalSettings());
    }
}

void GoalStore::setSettings(const GoalSettings& settings) {
    if (settings == settings_) return;
    settings_ = settings;
    changed.emit();
}

void GoalStore::save() {
    if (const auto text = writeGoalSettings(settings_)) (void)files_.replaceAtomically(filePath_, *text);
}

}  // namespace tidewatch
