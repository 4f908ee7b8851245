#pragma once

#include <array>
#include <cstddef>

#include "shell/themes/color.h"
#include "shell/themes/fathom.h"
#include "shell/themes/system_colors.h"

namespace tidewatch {

/// The decoration behind the dashboard's cards.
enum class Decoration { none, paperGrain, scanlines, liquid };

inline constexpr std::size_t gamePieceCount = 7;

/// The palette of the statistics window and the widgets.
struct DashboardStyle {
    Color bg;
    Color card;
    Color cardSubtle;
    Color stroke;
    Color strongMute;
    Color mute;
    Color muteSoft;
    Color primaryText;
    Color secondaryText;
    std::array<Color, gamePieceCount> gamePieces;  ///< in the order of the game's pieces
    Decoration decoration = Decoration::none;
    Appearance nsAppearance = Appearance::dark;
    Color nsBackground;  ///< of the window itself

    /// The same in every theme.
    static constexpr Color tierProductive = fathom::greenNS;
    static constexpr Color tierNeutral = fathom::blueNS;
    static constexpr Color tierDistracting = fathom::redNS;
    static constexpr Color amber = fathom::amberNS;
    static constexpr Color tierOther = systemColor(SystemColor::gray, Appearance::dark).at(0.55);

    bool operator==(const DashboardStyle&) const = default;
};

/// The colour intensity of the animated background behind the dashboard.
inline constexpr double liquidDecorationIntensity = 0.45;

}  // namespace tidewatch
