#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/report_data.h"
#include "shell/themes/color.h"
#include "shell/themes/font_spec.h"

namespace tidewatch {

/// A line of text, elided at the end if wider than its column.
struct PageText {
    enum class Alignment { left, right };

    std::string text;
    FontSpec font;
    Color color;
    double tracking = 0;  ///< letter spacing
    double x = 0;         ///< left edge of its column
    double baseline = 0;
    double width = 0;  ///< of its column
    Alignment alignment = Alignment::left;

    bool operator==(const PageText&) const = default;
};

/// A filled rectangle: a rule or a bar.
struct PageBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    Color color;
    double radius = 0;  ///< of its corners

    bool operator==(const PageBox&) const = default;
};

/// The layout of the monthly report: one page of US Letter size. Lengths in points from the top left corner.
struct ReportPage {
    static constexpr double width = 612;
    static constexpr double height = 792;

    std::string title;  ///< document title
    Color paper;
    std::vector<PageBox> boxes;
    std::vector<PageText> texts;  ///< in reading order
};

/// The width of a line of text in points, without the tracking after its last letter.
using TextWidth = std::function<double(std::string_view text, const FontSpec& font, double tracking)>;

[[nodiscard]] ReportPage layOutReport(const ReportData& data, const TextWidth& textWidth);

}  // namespace tidewatch
