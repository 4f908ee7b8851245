#include "shell/style/palette.h"

#include "shell/style/qt_color.h"

namespace tidewatch {

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
      onFill(toQColor(fathom::ink)) {
    for (const auto& piece : style.gamePieces) gamePieces.append(toQColor(piece));
}

}  // namespace tidewatch
