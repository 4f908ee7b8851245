#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tidewatch {

/// What the time in an application counts as.
enum class Tier { productive, neutral, distracting, uncategorized };

/// All of them, in the order in which they are shown.
[[nodiscard]] std::span<const Tier> allTiers();

/// What is stored for it.
[[nodiscard]] std::string_view rawValue(Tier tier);

/// What the user sees.
[[nodiscard]] std::string_view displayName(Tier tier);

/// The tier that `raw` is stored for; exact matches only.
[[nodiscard]] std::optional<Tier> tierFromRaw(std::string_view raw);

}  // namespace tidewatch
