#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/tagged_string.h"
#include "classification/category.h"
#include "classification/tier.h"

namespace tidewatch {

/// What the user has changed of the tables.
struct CategoryOverrides {
    std::map<AppId, Category> apps;
    std::map<Category, Tier> tiers;
    bool operator==(const CategoryOverrides&) const = default;
};

/// The text of "categories.json": an object with "appOverrides", an object from identifier to the category's
/// raw value in ascending order of the identifiers' bytes, and "tierOverrides", a flat array of raw values,
/// category and tier in turn, in the order of the enumeration of categories.
[[nodiscard]] std::string serializeCategoryOverrides(const CategoryOverrides& overrides);

/// Reads such a text, strictly: nothing if it is not JSON, if one of the two keys is missing or has another
/// shape, or if a single raw value is unknown. Keys beside these two are passed over. What is given twice
/// counts as given last.
[[nodiscard]] std::optional<CategoryOverrides> parseCategoryOverrides(std::string text);

}  // namespace tidewatch
