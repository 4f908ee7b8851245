#pragma once

#include <functional>
#include <memory>

#include "analysis/report/pdf_report.h"
#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/export_commands.h"
#include "shell/services.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/views/clock_presenter.h"
#include "shell/views/stats_presenter.h"
#include "shell/windows/qt_surfaces.h"
#include "shell/windows/statistics_window.h"

namespace tidewatch {

/// The program as a whole, built once. Main thread only.
class Composition final {
public:
    /// `platform` must outlive this object; `terminate` ends the program in the ordinary way.
    Composition(const platform::Platform& platform, std::function<void()> terminate);

    [[nodiscard]] AppDelegate& delegate() { return delegate_; }

private:
    [[nodiscard]] QuickStatisticsWindow::Content statisticsContent();
    [[nodiscard]] std::unique_ptr<StatsPresenter> makeStats();

    const platform::Platform& platform_;
    Services services_;
    ThemeRegistry themes_;
    ThemeController theme_;
    ClockPresenter clock_;
    QtSurfaces surfaces_;
    PdfReport report_;
    ExportCommands exports_;
    std::unique_ptr<StatsPresenter> stats_;  ///< from the first showing of the statistics window on
    QuickStatisticsWindow statistics_;
    AppDelegate delegate_;
};

}  // namespace tidewatch
