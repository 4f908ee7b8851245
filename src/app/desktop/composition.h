#pragma once

#include <functional>
#include <memory>

#include "analysis/report/pdf_report.h"
#include "app/desktop/statistics.h"
#include "app/program.h"
#include "app/services.h"
#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/views/clock_presenter.h"
#include "shell/windows/qt_surfaces.h"
#include "shell/windows/statistics_window.h"

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

    const platform::Platform& platform_;
    Services services_;
    ClockPresenter clock_;
    QtSurfaces surfaces_;
    PdfReport report_;
    std::unique_ptr<Statistics> shown_;  ///< created when the statistics window is first shown
    QuickStatisticsWindow statistics_;
    Program program_;
};

}  // namespace tidewatch
