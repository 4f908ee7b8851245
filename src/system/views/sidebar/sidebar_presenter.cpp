#include "system/views/sidebar/sidebar_presenter.h"

namespace tidewatch {

SidebarPresenter::SidebarPresenter(const Sources& sources)
    : overview_({
          .monitor = sources.monitor,
          .watch = sources.watch,
          .speed = sources.speed,
          .desktop = sources.desktop,
          .onSelect = [this](SysPanel panel) { select(panel); },
          .below = sources.belowOverview,
      }),
      disk_(frame(sources), sources.desktop),
      memory_(frame(sources), sources.running),
      cpu_(frame(sources), sources.running),
      network_(frame(sources), sources.speed),
      devices_(frame(sources), sources.ejector, sources.commands) {}

DetailPresenter::Frame SidebarPresenter::frame(const Sources& sources) {
    return {.monitor = sources.monitor, .watch = sources.watch, .back = [this] { back(); }};
}

void SidebarPresenter::select(SysPanel panel) {
    if (panel == panel_) return;
    const auto before = paneOf(panel_);
    panel_ = panel;
    // In this order, so that the monitor runs on.
    setPaneVisible(paneOf(panel_), isVisible());
    setPaneVisible(before, false);
    Q_EMIT panelChanged();
}

void SidebarPresenter::visibilityChanged() {
    setPaneVisible(paneOf(panel_), isVisible());
}

Pane SidebarPresenter::paneOf(SysPanel panel) {
    const auto pane = [](const char* view, auto& presenter) {
        return Pane{.id = view,
                    .title = presenter.title(),
                    .view = viewUrl("Tidewatch.System", view),
                    .presenter = &presenter};
    };
    switch (panel) {
        case SysPanel::overview:
            break;
        case SysPanel::disk:
            return pane("SysDiskDetail", disk_);
        case SysPanel::memory:
            return pane("SysMemoryDetail", memory_);
        case SysPanel::cpu:
            return pane("SysCPUDetail", cpu_);
        case SysPanel::network:
            return pane("SysNetworkDetail", network_);
        case SysPanel::devices:
            return pane("SysDevicesDetail", devices_);
    }
    return pane("SysOverviewPanel", overview_);
}

}  // namespace tidewatch
