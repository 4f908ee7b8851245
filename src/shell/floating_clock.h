#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "core/broadcaster.h"
#include "core/settings.h"
#include "platform/api/screens.h"
#include "shell/floating_panel.h"
#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"

namespace tidewatch {

/// The clock on the desktop: a floating window above the others, sized by theme and settings. A click on it
/// posts FloatingPanelClicked. Main thread only.
class FloatingClock final {
public:
    /// The distance from the screen's edges of a clock without a stored position.
    static constexpr double margin = 24;

    /// All of it must outlive the clock.
    struct Dependencies {
        Settings& settings;
        const Broadcaster& broadcaster;
        platform::Screens& screens;
        const ThemeController& theme;
        Surfaces& surfaces;
        /// Opens the program's menu, when requested on the clock.
        std::function<void()> openMenu;
        /// Whether the menu can also be opened from a tray.
        std::function<bool()> hasTray;
    };

    explicit FloatingClock(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}

    /// Creates the window, and shows it unless hidden in the settings. Must be called once, before anything
    /// else.
    void begin();

    /// Applies a size changed by theme or settings.
    void applySize();

    /// Shows or hides it, persistently. Without a tray, a hint says how a hidden clock comes back.
    void toggleVisible();

    /// Shows a hidden clock, persistently, if there is no tray whose menu could.
    void bringBackWithoutTray();

    /// Tells the user where the menu is without a tray.
    void hintAtMenu();

private:
    [[nodiscard]] FloatingPanel::Owner owner();
    [[nodiscard]] PanelSize size() const;

    const Dependencies dependencies_;
    std::unique_ptr<FloatingWindow> window_;
    std::unique_ptr<FloatingPanel> panel_;
};

}  // namespace tidewatch
