#include "ui/style/palette.h"

#include "ui/style/contrast.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

/// The brightest colour of the liquid behind the dashboard.
constexpr Color brightestLiquid = Color::whiteLevel(0.8);

/// Dense enough for the theme's faintest text to be legible.
constexpr double liquidCover = 0.75;

/// Of a widget on the desktop.
constexpr double widgetOpacity = 0.88;

QColor groundOf(const DashboardStyle& style) {
    return toQColor(style.decoration == Decoration::liquid ? style.nsBackground.at(liquidCover)
                                                           : Color::blackAt(0));
}

}  // namespace

Palette::Palette(const DashboardStyle& style)
    : bg(toQColor(style.bg)),
      card(toQColor(style.card)),
      cardSubtle(toQColor(style.cardSubtle)),
      stroke(toQColor(style.stroke)),
      strongMute(toQColor(style.strongMute)),
      mute(toQColor(style.mute)),
      muteSoft(toQColor(style.muteSoft)),
      primaryText(toQColor(style.primaryText)),
      secondaryText(toQColor(style.secondaryText)),
      windowBackground(toQColor(style.nsBackground)),
      tierProductive(toQColor(DashboardStyle::tierProductive)),
      tierNeutral(toQColor(DashboardStyle::tierNeutral)),
      tierDistracting(toQColor(DashboardStyle::tierDistracting)),
      tierOther(toQColor(DashboardStyle::tierOther)),
      amber(toQColor(DashboardStyle::amber)),
      onFill(toQColor(fathom::ink)),
      ground(groundOf(style)),
      textGround(blendedOver(
          card,
          blendedOver(ground, style.decoration == Decoration::liquid ? toQColor(brightestLiquid) : bg))),
      widget(toQColor(style.bg.at(widgetOpacity))),
      widgetTextGround(blendedOver(widget, style.nsAppearance == Appearance::dark ? Qt::white : Qt::black)) {
    for (const auto& piece : style.gamePieces) gamePieces.append(toQColor(piece));
}

}  // namespace tidewatch
