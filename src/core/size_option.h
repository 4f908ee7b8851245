#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tidewatch {

/// The choices that the menu offers for Settings::sizeScale.
enum class SizeOption { xs, sm, md, lg, full, huge };

/// Every option in the order of the menu.
[[nodiscard]] std::span<const SizeOption> allSizeOptions();

/// What is stored for it: the scale of the floating clock.
[[nodiscard]] double rawValue(SizeOption option);

/// What the menu shows for it.
[[nodiscard]] std::string_view label(SizeOption option);

/// The option stored as exactly `raw`, if there is one.
[[nodiscard]] std::optional<SizeOption> sizeOption(double raw);

/// The option nearest to any stored value; in a tie, the smaller one.
[[nodiscard]] SizeOption closestSizeOption(double raw);

}  // namespace tidewatch
