#pragma once

#include <QFont>
#include <QString>
#include <string_view>

namespace tidewatch {

/// A text from outside, UTF-8, as one line that is at most `width` pixels wide in `font`; what is too long
/// ends in an ellipsis.
[[nodiscard]] QString elidedLine(std::string_view text, const QFont& font, double width);

}  // namespace tidewatch
