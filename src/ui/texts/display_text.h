#pragma once

#include <QString>
#include <string_view>

#include "base/seconds.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

/// A name that others gave, which may be anything, as one line that can be seen: what would break it becomes
/// a blank, of more than 200 user-perceived characters the first are left and an ellipsis, and a name with
/// nothing to see is "Sin nombre". Costs no more for a longer one.
[[nodiscard]] QString nameText(std::string_view utf8);

/// The name itself, or "Sin nombre" where it has nothing to see. Costs no more for a longer one.
[[nodiscard]] std::string_view visibleName(std::string_view utf8);

/// "45s", "12m" or "2h 5m".
[[nodiscard]] QString timeText(Seconds seconds);

/// "37%": what `part` is of `whole`, in whole per cent; "0%" of nothing.
[[nodiscard]] QString shareText(Seconds part, Seconds whole);

/// What `part` is of `whole`, 0 to 1; 0 of nothing.
[[nodiscard]] double share(Seconds part, Seconds whole);

/// "84%": a fraction in whole per cent, halves away from zero.
[[nodiscard]] QString percentText(double fraction);

}  // namespace tidewatch
