#pragma once

#include <span>
#include <string_view>

namespace tidewatch {

/// The exercises that break alerts suggest, in order of rotation.
enum class Stretch { neck, shoulders, back, eyes, wrists, hips, fullBody };

/// An exercise's texts and the name of its symbol.
struct StretchTexts {
    std::string_view title;
    std::string_view icon;
    std::string_view instruction;
    std::string_view motivational;
};

/// All exercises in the order above.
[[nodiscard]] std::span<const Stretch> allStretches();

[[nodiscard]] const StretchTexts& textsOf(Stretch stretch);

}  // namespace tidewatch
