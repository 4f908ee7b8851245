#pragma once

#include <fmt/format.h>

#include <array>
#include <string>

#include "analysis/report/report_page.h"

namespace tidewatch::test {

inline std::string described(const Color& color) {
    return fmt::format("{:.3g},{:.3g},{:.3g},{:.3g}", color.red, color.green, color.blue, color.alpha);
}

inline std::string described(const FontSpec& font) {
    constexpr std::array roles{"serif", "mono", "sans"};
    constexpr std::array weights{"light", "regular", "medium", "semibold", "bold"};
    return fmt::format("{} {:g} {}{}", roles.at(static_cast<std::size_t>(font.role)), font.size,
                       weights.at(static_cast<std::size_t>(font.weight)),
                       font.digits == Digits::monospaced ? " even" : "");
}

/// A page as text for comparison: one drawing operation per line.
inline std::string described(const ReportPage& page) {
    std::string lines = fmt::format("title {}\npaper {}\n", page.title, described(page.paper));
    for (const auto& box : page.boxes) {
        lines += fmt::format("box {:.4g} {:.4g} size {:.4g} x {:.4g} radius {:g} colour {}\n", box.x, box.y,
                             box.width, box.height, box.radius, described(box.color));
    }
    for (const auto& text : page.texts) {
        lines += fmt::format("text {:.4g} {:.4g} width {:.4g} {} | {} tracking {:g} colour {} | {}\n", text.x,
                             text.baseline, text.width,
                             text.alignment == PageText::Alignment::left ? "left" : "right",
                             described(text.font), text.tracking, described(text.color), text.text);
    }
    return lines;
}

}  // namespace tidewatch::test
