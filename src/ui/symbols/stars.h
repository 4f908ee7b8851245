#pragma once

#include <QString>
#include <QStringList>

namespace tidewatch {

/// How many stars a day can earn.
inline constexpr int starCount = 5;

/// The symbols of a row of stars, the first `earned` of them filled.
[[nodiscard]] QStringList starSymbols(int earned);

/// "3 de 5 estrellas"
[[nodiscard]] QString starsText(int earned);

}  // namespace tidewatch
