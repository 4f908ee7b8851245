#pragma once

#include <functional>
#include <memory>

#include "analysis/report/pdf_report.h"
#include "app/desktop/statistics.h"
#include "app/desktop/widget_views.h"
#include "app/program.h"
#include "app/services.h"
#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/views/clock_presenter.h"
#include "shell/windows/qt_surfaces.h"
#include "shell/windows/statistics_window.h"
#include "shell/windows/window_key_monitor.h"

namespace tidewatch {

/// The composition root with the toolkit. Main thread only.
class DesktopComposition final {
public:
    /// `platform` must outlive this object; `terminate` ends the program regularly.
    DesktopComposition(const platform::Platform& platform, std::function<void()> terminate);

    [[nodiscard]] AppDelegate& delegate() { return program_.delegate(); }

private:
    [[nodiscard]] QuickStatisticsWindow::Content statisticsContent();
    [[nodiscard]] std::unique_ptr<Statistics> makeStatistics();
    [[nodiscard]] WidgetViews& widgets();

    const platform::Platform& platform_;
    Services services_;
    ClockPresenter clock_;
    WindowKeyMonitor keys_;
    QtSurfaces surfaces_;
    PdfReport report_;
    std::unique_ptr<Statistics> shown_;     ///< created when the statistics window is first shown
    std::unique_ptr<WidgetViews> widgets_;  ///< created when the first widget is shown
    QuickStatisticsWindow statistics_;
    Program program_;
};

}  // namespace tidewatch
