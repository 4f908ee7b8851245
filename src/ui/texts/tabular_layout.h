#pragma once

#include <QString>
#include <vector>

#include "shell/themes/font_spec.h"
#include "ui/texts/shaped_font.h"

namespace tidewatch {

/// A run of text drawn in one call, `x` pixels from the line's start.
struct TabularRun {
    QString text;
    double x = 0;
};

/// A line of text laid out in the font's own pixels.
struct TabularLine {
    std::vector<TabularRun> runs;
    double width = 0;   ///< without the letter spacing after the last letter
    double shrink = 1;  ///< the scale needed to keep within the maximum width
};

/// Lengths in the font's own pixels.
struct TabularOptions {
    Digits digits = Digits::proportional;
    double wordGap = -1;      ///< the width of a space; negative for the font's own
    double maximumWidth = 0;  ///< 0 for none
    double screenPixel = 0;   ///< the size of a screen pixel; 0 for a page without pixels

    bool operator==(const TabularOptions&) const = default;
};

/// Lays out one line. With monospaced digits every digit is centred in a cell as wide as the widest digit, so
/// that a running clock does not jitter; cells are whole screen pixels, so that a digit looks the same in
/// each of them. A line that is too wide first narrows its colons, then is scaled down.
[[nodiscard]] TabularLine layOutTabular(const QString& text, ShapedFont& font, const TabularOptions& options);

}  // namespace tidewatch
