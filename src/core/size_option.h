#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tidewatch {

/// The menu's choices for Settings::sizeScale.
enum class SizeOption { xs, sm, md, lg, full, huge };

/// Every option in the order of the menu.
[[nodiscard]] std::span<const SizeOption> allSizeOptions();

/// Its stored value: the scale of the floating clock.
[[nodiscard]] double rawValue(SizeOption option);

/// Its label in the menu.
[[nodiscard]] std::string_view label(SizeOption option);

/// The option with exactly this stored value, or nullopt.
[[nodiscard]] std::optional<SizeOption> sizeOption(double raw);

/// The option closest to a stored value; on a tie, the smaller one.
[[nodiscard]] SizeOption closestSizeOption(double raw);

}  // namespace tidewatch
