#pragma once

#include <vector>

#include "platform/api/clock.h"
#include "system/machine_overview.h"
#include "system/views/disk_tab_presenter.h"
#include "system/views/sidebar/sidebar_presenter.h"
#include "system/views/system_commands.h"
#include "system/views/system_tab_presenter.h"
#include "system/views/system_watch.h"
#include "ui/models/pane.h"

namespace tidewatch {

/// What the statistics window shows of the machine: two tabs and the sidebar. Main thread only.
class SystemViews final {
public:
    /// `clock` and `machine` must outlive it. `belowOverview` are panes of other rooms, in the sidebar.
    SystemViews(const platform::Clock& clock, MachineOverview& machine, SystemCommands commands,
                const std::vector<Pane>& belowOverview);

    [[nodiscard]] std::vector<Pane> tabs();
    [[nodiscard]] Pane sidebar();

    [[nodiscard]] SystemWatch& watch() { return watch_; }
    [[nodiscard]] SystemTabPresenter& systemTab() { return system_; }
    [[nodiscard]] DiskTabPresenter& diskTab() { return disk_; }
    [[nodiscard]] SidebarPresenter& sidebarPanels() { return sidebar_; }

private:
    const SystemCommands commands_;
    SystemWatch watch_;
    SystemTabPresenter system_;
    DiskTabPresenter disk_;
    SidebarPresenter sidebar_;
};

}  // namespace tidewatch
