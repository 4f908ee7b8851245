#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tidewatch {

/// The choices that the menu offers for Settings::idleThresholdSeconds.
enum class IdleOption { one, three, five, ten, fifteen, thirty };

/// Every option in the order of the menu.
[[nodiscard]] std::span<const IdleOption> allIdleOptions();

/// What is stored for it, in seconds.
[[nodiscard]] std::int64_t rawValue(IdleOption option);

/// What the menu shows for it.
[[nodiscard]] std::string_view label(IdleOption option);

/// The option stored as exactly `raw`, if there is one.
[[nodiscard]] std::optional<IdleOption> idleOption(std::int64_t raw);

/// The option nearest to any stored value; in a tie, the smaller one.
[[nodiscard]] IdleOption closestIdleOption(std::int64_t raw);

}  // namespace tidewatch
