#pragma once

#include <QPainterPath>
#include <QStringView>
#include <optional>

namespace tidewatch {

/// The shape of a symbol in a square of side 1, its top left corner at (0, 0), to be filled; nothing for a
/// name that is not in the table. The one place where the names of symbols become drawings.
[[nodiscard]] std::optional<QPainterPath> symbolShape(QStringView name);

}  // namespace tidewatch
