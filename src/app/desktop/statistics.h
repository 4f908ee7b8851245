#pragma once

#include <vector>

#include "analysis/views/dashboard.h"
#include "app/services.h"
#include "claude/views/claude_views.h"
#include "platform/api/platform.h"
#include "shell/views/stats_presenter.h"
#include "ui/models/pane.h"

namespace tidewatch {

/// Assembles the content of the statistics window: one line per room that has tabs or a pane beside them.
/// Main thread only.
class Statistics final {
public:
    /// `platform` and `services` must outlive this object.
    Statistics(const platform::Platform& platform, Services& services, Dashboard::Commands commands);

    [[nodiscard]] StatsPresenter& presenter() { return presenter_; }
    [[nodiscard]] Dashboard& dashboard() { return dashboard_; }
    [[nodiscard]] ClaudeViews& claude() { return claude_; }

private:
    [[nodiscard]] std::vector<Pane> tabs();
    [[nodiscard]] static std::vector<Pane> besideTabs();

    Dashboard dashboard_;
    ClaudeViews claude_;
    StatsPresenter presenter_;
};

}  // namespace tidewatch
