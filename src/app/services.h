#pragma once

#include <memory>

#include "analysis/goal_tracking.h"
#include "app/small_files.h"
#include "base/serial_queue.h"
#include "classification/classification.h"
#include "claude/claude_usage.h"
#include "core/broadcaster.h"
#include "core/counting.h"
#include "core/timer_engine.h"
#include "platform/api/platform.h"
#include "projects/project_tracking.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/widgets/desktop_widgets.h"
#include "system/machine_overview.h"
#include "wellbeing/wellbeing.h"

namespace tidewatch {

/// All services that need no screen, one bundle per feature, in dependency order. For the composition root
/// only, which passes each part to its users: nothing else takes the whole. Main thread only.
struct Services final {
    /// `platform` must outlive this object.
    explicit Services(const platform::Platform& platform);
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;

    Broadcaster broadcaster;
    Counting counting;
    Classification classification;
    ProjectTracking projects;
    GoalTracking goals;
    Wellbeing wellbeing;
    ClaudeUsage claude;
    MachineOverview machine;
    DesktopWidgets widgets;
    SmallFiles smallFiles;
    /// Writes the stores; destroyed before any of them.
    std::unique_ptr<JobQueue> disk;
    TimerEngine engine;
    ThemeRegistry themes;
    ThemeController theme;
};

}  // namespace tidewatch
