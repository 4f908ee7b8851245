#pragma once

#include <functional>
#include <memory>

#include "core/broadcaster.h"
#include "platform/api/screens.h"
#include "shell/floating_panel.h"
#include "shell/surfaces.h"
#include "shell/widgets/widget_store.h"

namespace tidewatch {

/// A widget's window, at its stored position or in the cascade. A click on it posts WidgetClicked. Main
/// thread only.
class WidgetWindow final {
public:
    /// The smallest scale; a smaller stored one counts as this.
    static constexpr double minScale = 0.5;

    /// The distance of the cascade from the screen's edges, and of each step from the one before.
    static constexpr double margin = 24;
    static constexpr double cascadeStep = 28;

    /// All of it must outlive the window.
    struct Dependencies {
        WidgetStore& store;
        const Broadcaster& broadcaster;
        platform::Screens& screens;
        Surfaces& surfaces;
        /// Opens the program's menu, when requested on the widget.
        std::function<void()> openMenu;
    };

    /// Creates and places it, without showing it.
    WidgetWindow(WidgetKind kind, const Dependencies& dependencies);

    /// Shows it in front of its layer, without activating it.
    void orderFrontRegardless() { panel_.orderFrontRegardless(); }
    void orderOut() { panel_.orderOut(); }

private:
    std::unique_ptr<FloatingWindow> window_;
    FloatingPanel panel_;
};

}  // namespace tidewatch
