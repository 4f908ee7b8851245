#pragma once

#include <vector>

#include "analysis/views/dashboard.h"
#include "app/services.h"
#include "claude/views/claude_views.h"
#include "platform/api/platform.h"
#include "shell/views/stats_presenter.h"
#include "system/views/system_views.h"
#include "ui/models/pane.h"
#include "wellbeing/views/games/games_presenter.h"

namespace tidewatch {

/// Assembles the content of the statistics window: one line per room that has tabs or a pane beside them.
/// Main thread only.
class Statistics final {
public:
    /// Commands of the rooms that are implemented elsewhere.
    struct Commands {
        Dashboard::Commands dashboard;
        SystemCommands system;
    };

    /// `platform`, `services` and `keys` must outlive this object.
    Statistics(const platform::Platform& platform, Services& services, KeyMonitor& keys, Commands commands);

    [[nodiscard]] StatsPresenter& presenter() { return presenter_; }
    [[nodiscard]] Dashboard& dashboard() { return dashboard_; }
    [[nodiscard]] ClaudeViews& claude() { return claude_; }
    [[nodiscard]] SystemViews& system() { return system_; }

private:
    [[nodiscard]] std::vector<Pane> tabs();
    [[nodiscard]] std::vector<Pane> inSidebar();

    Dashboard dashboard_;
    ClaudeViews claude_;
    GamesPresenter games_;
    SystemViews system_;
    StatsPresenter presenter_;
};

/// What a panel of games needs.
[[nodiscard]] GamesPresenter::Sources gamesSources(const platform::Platform& platform, Services& services,
                                                   KeyMonitor& keys);

}  // namespace tidewatch
