#pragma once

#include <QString>
#include <string_view>

#include "base/seconds.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

/// An external name as one visible line: line breaks and control characters become spaces, names of more than
/// 200 characters are elided, and an invisible name is "Sin nombre". Constant time for long names.
[[nodiscard]] QString nameText(std::string_view utf8);

/// The name itself, or "Sin nombre" if it is invisible. Constant time for long names.
[[nodiscard]] std::string_view visibleName(std::string_view utf8);

/// "45s", "12m" or "2h 5m".
[[nodiscard]] QString timeText(Seconds seconds);

/// "37%": `part` of `whole` as a whole percentage; "0%" if `whole` is 0.
[[nodiscard]] QString shareText(Seconds part, Seconds whole);

/// `part` / `whole`; 0 if `whole` is 0.
[[nodiscard]] double share(Seconds part, Seconds whole);

/// "84%": a fraction as a whole percentage, halves away from zero.
[[nodiscard]] QString percentText(double fraction);

/// The same, with exact halves to even.
[[nodiscard]] QString wholePercent(double fraction);

}  // namespace tidewatch
