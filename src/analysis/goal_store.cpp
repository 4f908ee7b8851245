#include "analysis/goal_store.h"

#include "analysis/goal_settings_json.h"

namespace tidewatch {

GoalStore::GoalStore(platform::FileSystem& files, platform::Log& log) : file_(files, log, "goals.json") {
    settings_ = file_.read(parseGoalSettings).value_or(GoalSettings());
}

void GoalStore::setSettings(const GoalSettings& settings) {
    if (settings == settings_) return;
    settings_ = settings;
    changed.emit();
}

void GoalStore::save() {
    if (const auto text = serializeGoalSettings(settings_)) file_.write(*text);
}

}  // namespace tidewatch
