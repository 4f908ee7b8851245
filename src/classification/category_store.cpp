#include "classification/category_store.h"

#include <utility>

#include "classification/category_defaults.h"
#include "core/data_directory.h"

namespace tidewatch {

CategoryStore::CategoryStore(platform::FileSystem& files, platform::Log& log,
                             const platform::Workspace& workspace)
    : files_(files),
      log_(log),
      registered_(files, log, workspace),
      filePath_(dataDirectory(files) + "/categories.json") {
    // Without the directory there is no file either, and the first change will say so.
    static_cast<void>(files_.createDirectories(dataDirectory(files)));
    if (auto text = files_.readWhole(filePath_)) {
        if (auto overrides = readCategoryOverrides(std::move(text).value())) {
            overrides_ = std::move(*overrides);
        }
    }
}

Category CategoryStore::category(const AppId& app) const {
    if (const auto chosen = overrides_.apps.find(app); chosen != overrides_.apps.end()) {
        return chosen->second;
    }
    if (const auto builtIn = defaultCategory(app)) return *builtIn;
    return registered_.category(app).value_or(Category::uncategorized);
}

Tier CategoryStore::tier(Category category) const {
    const auto chosen = overrides_.tiers.find(category);
    return chosen == overrides_.tiers.end() ? defaultTier(category) : chosen->second;
}

void CategoryStore::setCategory(Category category, const AppId& app) {
    overrides_.apps[app] = category;
    flush();
}

void CategoryStore::clearCategoryOverride(const AppId& app) {
    overrides_.apps.erase(app);
    flush();
}

void CategoryStore::setTier(Tier tier, Category category) {
    overrides_.tiers[category] = tier;
    flush();
}

void CategoryStore::clearTierOverride(Category category) {
    overrides_.tiers.erase(category);
    flush();
}

void CategoryStore::flush() {
    const auto written = files_.replaceAtomically(filePath_, writeCategoryOverrides(overrides_));
    if (!written) log_.warning("Tidewatch: failed to write categories.json: " + written.error().message);
}

}  // namespace tidewatch
