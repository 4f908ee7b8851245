#pragma once

#include "analysis/goal_store.h"
#include "classification/category_store.h"
#include "core/tick_listeners.h"
#include "projects/project_store.h"
#include "shell/widgets/widget_store.h"

namespace tidewatch {

/// The files that are written at each change and, if they go missing, together with the counters. Main thread
/// only.
class SmallFiles final : public SmallFilesListener {
public:
    /// All must outlive it.
    SmallFiles(ProjectStore& projects, CategoryStore& categories, GoalStore& goals, WidgetStore& widgets)
        : projects_(projects), categories_(categories), goals_(goals), widgets_(widgets) {}

    void restoreMissingOn(JobQueue& disk) override {
        projects_.restoreMissingOn(disk);
        categories_.restoreMissingOn(disk);
        goals_.restoreMissingOn(disk);
        widgets_.restoreMissingOn(disk);
    }

private:
    ProjectStore& projects_;
    CategoryStore& categories_;
    GoalStore& goals_;
    WidgetStore& widgets_;
};

}  // namespace tidewatch
