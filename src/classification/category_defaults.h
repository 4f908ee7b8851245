#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/tagged_string.h"
#include "classification/category.h"

namespace tidewatch {

/// One row of the built-in table.
struct CategoryDefault {
    std::string_view app;
    Category category;
};

/// The built-in classification table, the same on every desktop.
[[nodiscard]] std::span<const CategoryDefault> categoryDefaults();

/// The category of an application in the built-in table, matched exactly. Returns nullopt for one that is not
/// in the table.
[[nodiscard]] std::optional<Category> defaultCategory(const AppId& app);

}  // namespace tidewatch
