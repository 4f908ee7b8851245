#pragma once

#include <functional>
#include <string>

#include "analysis/csv_export.h"
#include "base/result.h"
#include "base/uuid.h"
#include "core/app_usage_store.h"
#include "core/daily_store.h"
#include "core/timer_engine.h"
#include "platform/api/desktop.h"
#include "platform/api/file_system.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// Exports the record to files of the user's choice. All commands are asynchronous: they first show a save
/// dialog, and cancelling it ends them silently. Main thread only.
class ExportCommands final {
public:
    /// All of it must outlive this object.
    struct Dependencies {
        const TimerEngine& engine;
        DailyStore& days;
        AppUsageStore& apps;
        const ProjectStore& projects;
        ProjectTimeStore& projectTime;
        const CategoryStore& categories;
        const AppInfoResolver& appInfo;
        platform::FileSystem& files;
        platform::Desktop& desktop;
        Dialogs& dialogs;
        /// Writes the monthly report; returns false on failure.
        std::function<bool(const std::string& path)> generateReport;
    };

    explicit ExportCommands(Dependencies dependencies);

    /// Today's applications, whatever day is selected.
    void exportCSV();

    /// The whole history of a project; no effect for one that no longer exists.
    void exportProjectCSV(const Uuid& id);

    /// The monthly report. Reveals the path in the file manager, even after a failure, which is only logged.
    void exportReport();

private:
    void write(const std::string& path, const std::string& text);

    Dependencies dependencies_;
    CsvExport csv_;
};

}  // namespace tidewatch
