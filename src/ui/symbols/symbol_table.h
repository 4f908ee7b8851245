#pragma once

#include <QPainterPath>
#include <QStringList>
#include <QStringView>
#include <optional>

namespace tidewatch {

/// The shape of a symbol inside a square of side 1, its top left corner at (0, 0), to be filled; nothing for
/// a name that is not in the table. The one place where the names of symbols become drawings. A shape from
/// the icon font is empty where that font is not installed. Main thread only.
[[nodiscard]] std::optional<QPainterPath> symbolShape(QStringView name);

/// Every name of the table.
[[nodiscard]] QStringList symbolNames();

}  // namespace tidewatch
