#include "classification/category_store.h"

#include <utility>

#include "classification/category_defaults.h"

namespace tidewatch {

CategoryStore::CategoryStore(platform::FileSystem& files, platform::Log& log,
                             platform::Applications& applications)
    : registered_(files, log, applications),
      file_(files, log, "categories.json", "Tidewatch: failed to write categories.json: ") {
    if (auto overrides = file_.read(parseCategoryOverrides)) overrides_ = std::move(*overrides);
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
    file_.write(serializeCategoryOverrides(overrides_));
}

}  // namespace tidewatch
