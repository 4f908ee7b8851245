#pragma once

#include <string>

#include "base/tagged_string.h"
#include "classification/category.h"
#include "classification/category_overrides.h"
#include "classification/registered_category.h"
#include "classification/tier.h"
#include "core/kept_file.h"
#include "platform/api/applications.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"

namespace tidewatch {

/// Says what an application is and what that counts as, and keeps the user's changes to the tables
/// ("categories.json"). Main thread only.
///
/// Nothing is announced on a change: whoever computes asks anew, and figures of past days change with it.
class CategoryStore final {
public:
    /// Reads the file; one that is missing or cannot be read to the last value is no overrides at all.
    /// All three must outlive it.
    CategoryStore(platform::FileSystem& files, platform::Log& log, platform::Applications& applications);

    /// The user's choice; else what the built-in table says; else what the application registered with the
    /// desktop when it was first met; else Category::uncategorized.
    [[nodiscard]] Category category(const AppId& app) const;

    /// The user's choice, else the category's own tier.
    [[nodiscard]] Tier tier(Category category) const;

    /// The tier of its category; an application has none of its own.
    [[nodiscard]] Tier tier(const AppId& app) const { return tier(category(app)); }

    /// Each changes the record in memory and writes the file at once. On failure the change stands in memory
    /// and the log tells.
    void setCategory(Category category, const AppId& app);
    void clearCategoryOverride(const AppId& app);
    void setTier(Tier tier, Category category);
    void clearTierOverride(Category category);

    /// Brings to the disk what applications registered that were met for the first time. To be called often:
    /// it does nothing without news.
    void flushRegistered() { registered_.flush(); }

    /// Lets `disk` write both files again that have gone missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) {
        file_.restoreOn(disk);
        registered_.restoreMissingOn(disk);
    }

    [[nodiscard]] const std::string& dataFilePath() const { return file_.path(); }

private:
    void flush();

    mutable RegisteredCategories registered_;  // remembers what it is asked for
    KeptFile file_;
    CategoryOverrides overrides_;
};

}  // namespace tidewatch
