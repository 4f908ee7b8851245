#pragma once

#include "classification/app_info_resolver.h"
#include "classification/category_store.h"
#include "classification/productivity_score.h"
#include "core/app_usage_store.h"

namespace tidewatch {

/// The classification of counted seconds, built together. Main thread only.
struct Classification {
    /// All of it must outlive the bundle.
    struct Dependencies {
        platform::FileSystem& files;
        platform::Log& log;
        platform::Applications& applications;
        const AppUsageStore& apps;
    };

    explicit Classification(const Dependencies& dependencies)
        : categories(dependencies.files, dependencies.log, dependencies.applications),
          appInfo(dependencies.applications),
          scorer(dependencies.apps, categories) {}

    CategoryStore categories;
    AppInfoResolver appInfo;
    ProductivityScorer scorer;
};

}  // namespace tidewatch
