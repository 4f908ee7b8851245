#pragma once

#include <span>
#include <string_view>

namespace tidewatch {

/// The exercises that a break alert proposes, in the order of their rotation.
enum class Stretch { neck, shoulders, back, eyes, wrists, hips, fullBody };

/// What the user reads of an exercise, and the name of its symbol.
struct StretchTexts {
    std::string_view title;
    std::string_view icon;
    std::string_view instruction;
    std::string_view motivational;
};

/// Every exercise in the order above.
[[nodiscard]] std::span<const Stretch> allStretches();

[[nodiscard]] const StretchTexts& textsOf(Stretch stretch);

}  // namespace tidewatch
