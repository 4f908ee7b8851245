#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tidewatch {

/// The menu's choices for Settings::idleThresholdSeconds.
enum class IdleOption { one, three, five, ten, fifteen, thirty };

/// Every option in the order of the menu.
[[nodiscard]] std::span<const IdleOption> allIdleOptions();

/// Its stored value, in seconds.
[[nodiscard]] std::int64_t rawValue(IdleOption option);

/// Its label in the menu.
[[nodiscard]] std::string_view label(IdleOption option);

/// The option with exactly this stored value, or nullopt.
[[nodiscard]] std::optional<IdleOption> idleOption(std::int64_t raw);

/// The option closest to a stored value; on a tie, the smaller one.
[[nodiscard]] IdleOption closestIdleOption(std::int64_t raw);

}  // namespace tidewatch
