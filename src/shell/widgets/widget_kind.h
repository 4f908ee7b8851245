#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "shell/themes/theme.h"

namespace tidewatch {

/// A widget of the desktop, by its topic.
enum class WidgetKind { productivity, system, streak, goals, speed, project, topApps, arcade };

/// Every kind in the order of the menu, which is also that of the cascade.
[[nodiscard]] std::span<const WidgetKind> allWidgetKinds();

/// Its name in files and events.
[[nodiscard]] std::string_view rawValue(WidgetKind kind);

/// Its name in the menu.
[[nodiscard]] std::string_view title(WidgetKind kind);

/// The symbol beside its name in the menu.
[[nodiscard]] std::string_view menuIcon(WidgetKind kind);

/// Its size at scale 1.
[[nodiscard]] PanelSize defaultSize(WidgetKind kind);

/// Its step in the cascade of widgets without a stored position, from 0.
[[nodiscard]] int cascadeIndex(WidgetKind kind);

/// The kind with exactly this raw value, or nullopt.
[[nodiscard]] std::optional<WidgetKind> widgetKind(std::string_view raw);

}  // namespace tidewatch
