#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "classification/tier.h"

namespace tidewatch {

/// The kind of an application.
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

/// All categories in display order.
[[nodiscard]] std::span<const Category> allCategories();

/// Its stored value, which is also its display name.
[[nodiscard]] std::string_view rawValue(Category category);

/// The category with exactly this stored value, or nullopt.
[[nodiscard]] std::optional<Category> categoryFromRaw(std::string_view raw);

/// Its tier unless overridden by the user.
[[nodiscard]] Tier defaultTier(Category category);

}  // namespace tidewatch
