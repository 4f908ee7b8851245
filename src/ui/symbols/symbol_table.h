#pragma once

#include <QPainterPath>
#include <QStringList>
#include <QStringView>
#include <optional>

namespace tidewatch {

/// The filled shape of a symbol inside the unit square at (0, 0); nullopt for an unknown name. The only place
/// that maps symbol names to drawings. A shape from the icon font is empty if that font is not installed.
/// Main thread only.
[[nodiscard]] std::optional<QPainterPath> symbolShape(QStringView name);

/// All names in the table.
[[nodiscard]] QStringList symbolNames();

}  // namespace tidewatch
