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

/// What writes the record into files of the user's choosing. All of them ask for the place first and return
/// at once; an answer that is no place ends them without a word. Main thread only.
class ExportCommands final {
public:
    /// What the commands work on; all of it must outlive this object.
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
        /// Writes the report of the month; false if it could not be written.
        std::function<bool(const std::string& path)> generateReport;
    };

    explicit ExportCommands(Dependencies dependencies);

    /// Today's applications, whatever day is on show.
    void exportCSV();

    /// The whole history of a project; nothing for one that is there no more.
    void exportProjectCSV(const Uuid& id);

    /// The month on a page. Shows the place in the file manager, also after a failure, which is not told.
    void exportReport();

private:
    void write(const std::string& path, const std::string& text);

    Dependencies dependencies_;
    CsvExport csv_;
};

}  // namespace tidewatch
