#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tidewatch {

/// How the time in an application is rated.
enum class Tier { productive, neutral, distracting, uncategorized };

/// All tiers in display order.
[[nodiscard]] std::span<const Tier> allTiers();

/// Its stored value.
[[nodiscard]] std::string_view rawValue(Tier tier);

/// Its display name.
[[nodiscard]] std::string_view displayName(Tier tier);

/// The tier with exactly this stored value, or nullopt.
[[nodiscard]] std::optional<Tier> tierFromRaw(std::string_view raw);

}  // namespace tidewatch
