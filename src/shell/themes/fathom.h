#pragma once

#include <string_view>

#include "shell/themes/color.h"
#include "shell/themes/font_spec.h"

/// The brand: its colours, words and type.
namespace tidewatch::fathom {

inline constexpr Color ink = Color::hex6(0x0A0A0A);
inline constexpr Color carbon = Color::hex6(0x121212);
inline constexpr Color carbon2 = Color::hex6(0x181818);
inline constexpr Color paper = Color::hex6(0xF4F1EA);
inline constexpr Color paper2 = Color::hex6(0xFAFAF8);
inline constexpr Color fog = Color::hex6(0x8A8A85);
inline constexpr Color fog2 = Color::hex6(0x5C5C58);
inline constexpr Color green = Color::hex6(0x7BD88F);
inline constexpr Color blue = Color::hex6(0x6B9ED4);
inline constexpr Color red = Color::hex6(0xD15757);
inline constexpr Color amber = Color::hex6(0xE8C458);

/// The same colours for window frames and printed pages, with three decimals.
inline constexpr Color inkNS{0.039, 0.039, 0.039};
inline constexpr Color paperNS{0.957, 0.945, 0.918};
inline constexpr Color greenNS{0.482, 0.847, 0.561};
inline constexpr Color blueNS{0.42, 0.62, 0.831};
inline constexpr Color redNS{0.819, 0.341, 0.341};
inline constexpr Color amberNS{0.91, 0.769, 0.345};
inline constexpr Color fogNS{0.541, 0.541, 0.521};

inline constexpr std::string_view wordmark = "FATHOM";
inline constexpr std::string_view tagline = "Marca tu tiempo.";

inline constexpr std::string_view serifFamily = "Fraunces";
inline constexpr std::string_view monoFamily = "IBM Plex Mono";
inline constexpr std::string_view sansFamily = "Inter";

[[nodiscard]] constexpr FontSpec serif(double size, FontWeight weight) {
    return {FontRole::serif, size, weight};
}
[[nodiscard]] constexpr FontSpec mono(double size, FontWeight weight) {
    return {FontRole::mono, size, weight};
}
[[nodiscard]] constexpr FontSpec sans(double size, FontWeight weight) {
    return {FontRole::sans, size, weight};
}

}  // namespace tidewatch::fathom
