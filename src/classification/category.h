#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "classification/tier.h"

namespace tidewatch {

/// What kind of application one is.
enum class Category {
    audioVideo,
    design,
    development,
    documents,
    communication,
    meetings,
    browser,
    system,
    utilities,
    music,
    games,
    entertainment,
    social,
    other,
    uncategorized,
};

/// All of them, in the order in which they are shown.
[[nodiscard]] std::span<const Category> allCategories();

/// What is stored for it, and what the user sees.
[[nodiscard]] std::string_view rawValue(Category category);

/// The category that `raw` is stored for; exact matches only.
[[nodiscard]] std::optional<Category> categoryFromRaw(std::string_view raw);

/// What it counts as unless the user says otherwise.
[[nodiscard]] Tier defaultTier(Category category);

}  // namespace tidewatch
