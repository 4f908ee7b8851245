#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/tagged_string.h"
#include "classification/category.h"
#include "classification/tier.h"

namespace tidewatch {

/// The user's changes to the classification.
struct CategoryOverrides {
    std::map<AppId, Category> apps;
    std::map<Category, Tier> tiers;
    bool operator==(const CategoryOverrides&) const = default;
};

/// The text of "categories.json": an object with "appOverrides", an object from identifier to the category's
/// raw value in bytewise order of the identifiers, and "tierOverrides", a flat array of alternating raw
/// values of category and tier, in the order of the enumeration of categories.
[[nodiscard]] std::string serializeCategoryOverrides(const CategoryOverrides& overrides);

/// Parses such a text strictly: returns nullopt if it is not JSON, if one of the two keys is missing or has
/// another structure, or if any raw value is unknown. Other keys are ignored. Of duplicates the last wins.
[[nodiscard]] std::optional<CategoryOverrides> parseCategoryOverrides(std::string text);

}  // namespace tidewatch
