#pragma once

#include <string>

#include "base/tagged_string.h"
#include "classification/app_info_resolver.h"
#include "classification/category_store.h"
#include "core/app_usage_store.h"
#include "projects/project.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// Exports the record as CSV: UTF-8 without a byte order mark, lines terminated by LF. Fields with a comma, a
/// double quote or a line feed are quoted, with quotes doubled. Categories and tiers are the current ones.
/// Main thread only.
class CsvExport final {
public:
    /// All four must outlive it.
    CsvExport(const AppUsageStore& apps, const ProjectTimeStore& projectTime, const CategoryStore& categories,
              const AppInfoResolver& appInfo);

    /// The applications of one day, with their shares of all application seconds of that day.
    [[nodiscard]] std::string day(const DayKey& day) const;
    /// "tidewatch-2026-11-21.csv".
    [[nodiscard]] static std::string fileName(const DayKey& day);

    /// All days and applications of a project, and the total.
    [[nodiscard]] std::string project(const Project& project) const;
    /// "tidewatch-NAME.csv", with slashes in the name replaced by hyphens.
    [[nodiscard]] static std::string fileName(const Project& project);

private:
    /// The six columns common to both files, from identifier to duration.
    [[nodiscard]] std::string applicationColumns(const AppSeconds& app) const;

    const AppUsageStore& apps_;
    const ProjectTimeStore& projectTime_;
    const CategoryStore& categories_;
    const AppInfoResolver& appInfo_;
};

}  // namespace tidewatch
