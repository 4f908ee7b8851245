#pragma once

#include <QFont>
#include <QString>
#include <vector>

#include "shell/themes/font_spec.h"

namespace tidewatch {

/// A piece of a line that is drawn in one go, `x` pixels from the line's start.
struct TabularRun {
    QString text;
    double x = 0;
};

/// A line of text laid out in the font's own pixels.
struct TabularLine {
    std::vector<TabularRun> runs;
    double width = 0;   ///< without the letter spacing after the last letter
    double shrink = 1;  ///< what the drawing has to be scaled by to keep within the maximum width
};

/// Lengths in the font's own pixels.
struct TabularOptions {
    Digits digits = Digits::proportional;
    double wordGap = -1;      ///< what a blank takes; negative for the font's own blank
    double maximumWidth = 0;  ///< 0 for none
    double screenPixel = 0;   ///< a pixel of the screen; 0 for a page without pixels

    bool operator==(const TabularOptions&) const = default;
};

/// Lays out one line. With monospaced digits every digit stands in the middle of a cell as wide as the
/// widest digit, so that a running clock does not tremble; cells are whole pixels of the screen, so that a
/// digit looks the same in each of them. A line that is wider than allowed first draws its colons closer,
/// then is to be drawn smaller.
[[nodiscard]] TabularLine layOutTabular(const QString& text, const QFont& font,
                                        const TabularOptions& options);

}  // namespace tidewatch
