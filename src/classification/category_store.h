#pragma once

#include <string>

#include "base/tagged_string.h"
#include "classification/category.h"
#include "classification/category_overrides.h"
#include "classification/registered_category.h"
#include "classification/tier.h"
#include "core/restorable_file.h"
#include "platform/api/applications.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// The category and tier of applications, and the user's changes to them ("categories.json"). Main thread
/// only.
///
/// Changes are not signalled: figures are recomputed on demand, those of past days included.
class CategoryStore final {
public:
    /// Reads the file; a missing or invalid one yields no overrides. All three must outlive it.
    CategoryStore(platform::FileSystem& files, platform::Log& log, platform::Applications& applications);

    /// The user's choice, else the built-in table's, else the one registered with the desktop when the
    /// application was first seen, else Category::uncategorized.
    [[nodiscard]] Category category(const AppId& app) const;

    /// The user's choice, else the category's own tier.
    [[nodiscard]] Tier tier(Category category) const;

    /// The tier of its category; an application has none of its own.
    [[nodiscard]] Tier tier(const AppId& app) const { return tier(category(app)); }

    /// Each changes the overrides in memory and writes the file at once. A failure is logged, and the change
    /// is kept in memory.
    void setCategory(Category category, const AppId& app);
    void clearCategoryOverride(const AppId& app);
    void setTier(Tier tier, Category category);
    void clearTierOverride(Category category);

    /// Writes the registrations of newly seen applications, if any. Should be called often.
    void flushRegistered() { registered_.flush(); }

    /// Rewrites missing files of the two on `disk`. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) {
        file_.restoreOn(disk);
        registered_.restoreMissingOn(disk);
    }

    [[nodiscard]] const std::string& dataFilePath() const { return file_.path(); }

private:
    void flush();

    mutable RegisteredCategories registered_;  // caches lookups
    RestorableFile file_;
    CategoryOverrides overrides_;
};

}  // namespace tidewatch
