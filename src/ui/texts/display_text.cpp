#include "ui/texts/display_text.h"

#include <fmt/format.h>

#include <QTextBoundaryFinder>
#include <algorithm>
#include <cmath>

#include "base/duration_format.h"

namespace tidewatch {
namespace {

constexpr int mostOfAName = 200;
/// A single one that the user perceives may consist of any number of characters.
constexpr std::size_t mostBytesOfAName = 4096;

/// The first bytes, up to the end of a character.
std::string_view beginning(std::string_view utf8, std::size_t most) {
    if (utf8.size() <= most) return utf8;
    const auto continues = [&](std::size_t place) {
        return (static_cast<unsigned char>(utf8[place]) & 0xC0U) == 0x80U;
    };
    auto end = most;
    while (end > 0 && continues(end)) --end;
    return utf8.substr(0, end);
}

bool breaksLine(QChar letter) {
    const auto category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

bool isSeen(QChar letter) {
    return !letter.isSpace() && letter.category() != QChar::Other_Format && !breaksLine(letter);
}

/// Where the first user-perceived characters of `name` end; its end if it has no more than these.
qsizetype endOfSeen(const QString& name) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, name);
    for (int count = 0; count < mostOfAName; ++count) {
        if (characters.toNextBoundary() < 0) return name.size();
    }
    return characters.position();
}

}  // namespace

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString nameText(std::string_view utf8) {
    const auto kept = beginning(utf8, mostBytesOfAName);
    auto name = text(kept);
    std::ranges::replace_if(name, breaksLine, QChar(' '));
    if (std::ranges::none_of(name, isSeen)) return "Sin nombre";
    const auto end = endOfSeen(name);
    if (end < name.size() || kept.size() < utf8.size()) name = name.left(end) + "…";
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

}  // namespace tidewatch
