#pragma once

#include <qqmlregistration.h>
#include <QString>
#include <vector>

#include "platform/api/desktop.h"
#include "platform/api/running_applications.h"
#include "system/views/sidebar/consumers_presenter.h"
#include "system/views/sidebar/devices_detail_presenter.h"
#include "system/views/sidebar/disk_detail_presenter.h"
#include "system/views/sidebar/network_detail_presenter.h"
#include "system/views/sidebar/sys_overview_presenter.h"
#include "system/views/sidebar/sys_panel.h"
#include "ui/models/pane.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The sidebar: shows its overview or one of the detail panels, of which only the one shown is visible. Main
/// thread only.
class SidebarPresenter final : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString accessibleText READ accessibleText CONSTANT FINAL)
    Q_PROPERTY(tidewatch::SysOverviewPresenter* overview READ overview CONSTANT FINAL)
    Q_PROPERTY(bool isOverview READ isOverview NOTIFY panelChanged FINAL)
    /// The detail panel; empty while the overview is shown.
    Q_PROPERTY(tidewatch::Pane detail READ detail NOTIFY panelChanged FINAL)

public:
    /// All of it must outlive the presenter.
    struct Sources {
        SystemMonitor& monitor;
        SystemWatch& watch;
        SpeedTester& speed;
        VolumeEjector& ejector;
        platform::RunningApplications& running;
        const platform::Desktop& desktop;
        const SystemCommands& commands;
        /// Below the rows of the overview.
        std::vector<Pane> belowOverview;
    };

    explicit SidebarPresenter(const Sources& sources);

    [[nodiscard]] QString accessibleText() const { return "Barra lateral"; }
    [[nodiscard]] SysOverviewPresenter* overview() { return &overview_; }
    [[nodiscard]] SysPanel panel() const { return panel_; }
    [[nodiscard]] bool isOverview() const { return panel_ == SysPanel::overview; }
    [[nodiscard]] Pane detail() { return isOverview() ? Pane() : paneOf(panel_); }

    void select(SysPanel panel);

    /// Returns to the overview.
    Q_INVOKABLE void back() { select(SysPanel::overview); }

    [[nodiscard]] DiskDetailPresenter& disk() { return disk_; }
    [[nodiscard]] MemoryDetailPresenter& memory() { return memory_; }
    [[nodiscard]] CpuDetailPresenter& cpu() { return cpu_; }
    [[nodiscard]] NetworkDetailPresenter& network() { return network_; }
    [[nodiscard]] DevicesDetailPresenter& devices() { return devices_; }

Q_SIGNALS:
    void panelChanged();

private:
    void update() override {}
    void visibilityChanged() override;
    [[nodiscard]] Pane paneOf(SysPanel panel);
    [[nodiscard]] DetailPresenter::Frame frame(const Sources& sources);

    SysPanel panel_ = SysPanel::overview;
    SysOverviewPresenter overview_;
    DiskDetailPresenter disk_;
    MemoryDetailPresenter memory_;
    CpuDetailPresenter cpu_;
    NetworkDetailPresenter network_;
    DevicesDetailPresenter devices_;
};

}  // namespace tidewatch
