#include "ui/texts/display_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/characters.h"
#include "base/duration_format.h"

namespace tidewatch {
namespace {

constexpr std::size_t maxNameCharacters = 200;
/// A single grapheme may consist of any number of code points.
constexpr std::size_t maxNameSize = 4096;

bool breaksLine(QChar letter) {
    const auto category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

bool isSeen(QChar letter) {
    return !letter.isSpace() && letter.category() != QChar::Other_Format && !breaksLine(letter);
}

}  // namespace

std::string_view visibleName(std::string_view utf8) {
    return std::ranges::any_of(text(charactersWithin(maxNameSize, utf8)), isSeen) ? utf8 : "Sin nombre";
}

QString nameText(std::string_view given) {
    const auto utf8 = visibleName(given);
    const auto read = charactersWithin(maxNameSize, utf8);
    const auto kept = firstCharacters(maxNameCharacters, read);
    auto name = text(kept);
    std::ranges::replace_if(name, breaksLine, QChar(' '));
    if (kept.size() < utf8.size()) name += "…";
    return name;
}

QString timeText(Seconds seconds) {
    return text(formatHM(seconds));
}

double share(Seconds part, Seconds whole) {
    if (whole < Seconds(1)) return 0;
    return std::clamp(static_cast<double>(part.count()) / static_cast<double>(whole.count()), 0.0, 1.0);
}

QString shareText(Seconds part, Seconds whole) {
    if (whole < Seconds(1)) return "0%";
    return text(
        fmt::format("{:.0f}%", static_cast<double>(part.count()) / static_cast<double>(whole.count()) * 100));
}

QString percentText(double fraction) {
    return text(fmt::format("{}%", std::llround(fraction * 100)));
}

QString wholePercent(double fraction) {
    return text(fmt::format("{:.0f}%", fraction * 100));
}

}  // namespace tidewatch
