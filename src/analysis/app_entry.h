#pragma once

#include <optional>
#include <string>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "classification/app_info_resolver.h"
#include "classification/category.h"
#include "classification/category_store.h"
#include "classification/tier.h"
#include "core/app_seconds.h"

namespace tidewatch {

/// One application in one day.
struct AppEntry {
    AppId app;
    Seconds seconds;
    std::string name;
    std::optional<AppIcon> icon;
    Category category = Category::uncategorized;
    Tier tier = Tier::uncategorized;
    bool operator==(const AppEntry&) const = default;
};

/// `app` as it is displayed and classified now.
[[nodiscard]] inline AppEntry appEntry(const AppSeconds& app, const AppInfoResolver& appInfo,
                                       const CategoryStore& categories) {
    const auto& info = appInfo.info(app.app);
    const auto category = categories.category(app.app);
    return {app.app, app.seconds, info.name, info.icon, category, categories.tier(category)};
}

}  // namespace tidewatch
