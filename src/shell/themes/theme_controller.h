#pragma once

#include <string_view>

#include "base/signal.h"
#include "core/broadcaster.h"
#include "core/settings.h"
#include "shell/themes/theme_registry.h"

namespace tidewatch {

/// Holds the active theme. Main thread only.
class ThemeController final {
public:
    /// Starts with the theme that the settings name. All three must outlive this object.
    ThemeController(const ThemeRegistry& registry, Settings& settings, const Broadcaster& broadcaster);

    [[nodiscard]] const Theme& active() const { return *active_; }

    /// Activates the theme with this id, then stores the given id, then broadcasts ThemeChanged, even if
    /// nothing changes. An unknown id activates the first theme and is stored as given.
    void switchTo(std::string_view id);

    /// Emitted each time the active theme is set, before it is stored.
    Signal<> changed;

private:
    const ThemeRegistry& registry_;
    Settings& settings_;
    const Broadcaster& broadcaster_;
    const Theme* active_;
};

}  // namespace tidewatch
