#pragma once

#include <QFont>
#include <QString>
#include <string_view>

namespace tidewatch {

/// External UTF-8 text as one line, elided to `width` pixels in `font`.
[[nodiscard]] QString elidedLine(std::string_view text, const QFont& font, double width);

}  // namespace tidewatch
