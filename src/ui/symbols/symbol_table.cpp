#include "ui/symbols/symbol_table.h"

#include <algorithm>
#include <array>
#include <variant>

#include "ui/symbols/symbol_drawings.h"
#include "ui/symbols/symbol_font.h"

namespace tidewatch {
namespace {

using Drawing = QPainterPath (*)();

/// A drawing of our own, or a code point of the icon font.
using Source = std::variant<Drawing, char32_t>;

struct Row {
    QStringView name;
    Source source;
};

constexpr std::array table = {
    Row{u"star.fill", filledStar},
    Row{u"star", hollowStar},
    Row{u"circle.fill", filledCircle},
    Row{u"bomb", bomb},
    // Commands.
    Row{u"chevron.left", U'\uE5CB'},
    Row{u"chevron.right", U'\uE5CC'},
    Row{u"plus", U'\uE145'},
    Row{u"minus", U'\uE15B'},
    Row{u"xmark", U'\uE5CD'},
    Row{u"checkmark", U'\uE5CA'},
    Row{u"checkmark.circle.fill", U'\uE86C'},
    Row{u"magnifyingglass", U'\uE8B6'},
    Row{u"doc.richtext", U'\uE873'},
    // Figures of the day and of a range of days.
    Row{u"app", appWindow},
    Row{u"gamecontroller.fill", U'\uEA28'},
    Row{u"flame.fill", U'\uEF55'},
    Row{u"calendar", U'\uEBCC'},
    Row{u"calendar.badge.checkmark", U'\uE614'},
    Row{u"clock", U'\uE8B5'},
    Row{u"clock.badge.exclamationmark", U'\uE51D'},
    Row{u"bolt.fill", U'\uEA0B'},
    Row{u"sum", U'\uE24A'},
    Row{u"chart.bar.fill", U'\uF20C'},
    Row{u"trophy.fill", U'\uEA23'},
    Row{u"leaf.fill", U'\uEA35'},
    Row{u"chart.pie.fill", U'\uE6C4'},
    Row{u"target", U'\uE39E'},
    Row{u"folder.fill", U'\uE2C7'},
    Row{u"square.grid.2x2.fill", fourSquares},
    // Games.
    Row{u"hourglass", U'\uE88C'},
    Row{u"lock.fill", U'\uE897'},
    Row{u"gift.fill", U'\uE8F6'},
    Row{u"pause.fill", U'\uE034'},
    Row{u"play.fill", U'\uE037'},
    Row{u"arrow.left", U'\uE5C4'},
    Row{u"arrow.up", U'\uE5D8'},
    Row{u"arrow.down", U'\uE5DB'},
    Row{u"arrow.right", U'\uE5C8'},
    Row{u"arrow.up.to.line", U'\uE25A'},
    // Claude.
    Row{u"sparkle", U'\uE65F'},
    Row{u"bubble.left.and.bubble.right", U'\uE0BF'},
    // The machine.
    Row{u"cpu", U'\uE322'},
    Row{u"memorychip", U'\uE30D'},
    Row{u"wifi", U'\uE63E'},
    Row{u"network", U'\uEB2F'},
    Row{u"cube.transparent", U'\uE9FE'},
    Row{u"speedometer", U'\uE9E4'},
    Row{u"internaldrive", U'\uE1DB'},
    Row{u"externaldrive", U'\uE1E0'},
    Row{u"eject.fill", U'\uE8FB'},
    Row{u"folder", U'\uE2C7'},
    Row{u"arrow.right.circle", U'\uEAAA'},
    Row{u"xmark.circle", U'\uE888'},
    Row{u"sidebar.right", U'\uF114'},
    // Exercises.
    Row{u"figure.mind.and.body", U'\uEA78'},
    Row{u"figure.arms.open", U'\uE92C'},
    Row{u"figure.flexibility", U'\uEBC4'},
    Row{u"eye", U'\uE8F4'},
    Row{u"hand.raised.fingers.spread", U'\uE925'},
    Row{u"figure.cooldown", U'\uE566'},
    Row{u"figure.walk", U'\uE536'},
};

QPainterPath shapeOf(const Source& source) {
    if (const auto* codePoint = std::get_if<char32_t>(&source)) return symbolGlyph(*codePoint);
    return std::get<Drawing>(source)();
}

}  // namespace

std::optional<QPainterPath> symbolShape(QStringView name) {
    const auto row = std::ranges::find(table, name, &Row::name);
    if (row == table.end()) return std::nullopt;
    return shapeOf(row->source);
}

QStringList symbolNames() {
    QStringList names;
    for (const auto& row : table) names.append(row.name.toString());
    return names;
}

}  // namespace tidewatch
