#pragma once

#include <string>

#include "base/tagged_string.h"
#include "classification/app_info_resolver.h"
#include "classification/category_store.h"
#include "core/app_usage_store.h"
#include "projects/project.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// Writes the record as comma-separated values: UTF-8, lines ended by LF, the last one too, no byte-order
/// mark. Texts with a comma, a double quote or a line feed stand in double quotes, theirs doubled. Categories
/// and tiers are those of the moment. Main thread only.
class CsvExport final {
public:
    /// All four must outlive it.
    CsvExport(const AppUsageStore& apps, const ProjectTimeStore& projectTime, const CategoryStore& categories,
              const AppInfoResolver& appInfo);

    /// The applications of one day, with their shares of all that applications got on it.
    [[nodiscard]] std::string day(const DayKey& day) const;
    /// "tidewatch-2026-11-21.csv".
    [[nodiscard]] static std::string fileName(const DayKey& day);

    /// Every day and application of a project, and the total.
    [[nodiscard]] std::string project(const Project& project) const;
    /// "tidewatch-NAME.csv", the name's slashes as hyphens.
    [[nodiscard]] static std::string fileName(const Project& project);

private:
    /// From the identifier to the duration; both files have these six.
    [[nodiscard]] std::string applicationColumns(const AppSeconds& app) const;

    const AppUsageStore& apps_;
    const ProjectTimeStore& projectTime_;
    const CategoryStore& categories_;
    const AppInfoResolver& appInfo_;
};

}  // namespace tidewatch
