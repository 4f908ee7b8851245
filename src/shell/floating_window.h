#pragma once

#include <functional>

#include "platform/api/screens.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// The layer of a floating window: above all other windows, or below them on the desktop.
enum class WindowLayer { above, below };

/// A borderless window in its layer, on every workspace, not in the taskbar, never focused. Updates its
/// content by itself. Positions are desktop points of the panel's top left corner, excluding any margin
/// around it.
class FloatingWindow {
public:
    virtual ~FloatingWindow() = default;

    [[nodiscard]] virtual PanelSize panelSize() const = 0;
    [[nodiscard]] virtual platform::Point origin() const = 0;
    virtual void setOrigin(platform::Point origin) = 0;

    /// Resizes, keeping the top left corner; animated if the window is visible.
    virtual void resize(PanelSize size) = 0;

    /// Adapts the size last requested and the resolution to the screens, after these have changed.
    virtual void fitToScreens() = 0;

    /// Shows it in front of its layer, without activating it.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;

    /// Mouse events not handled by the window's content; positions are desktop points.
    struct Gestures {
        std::function<void(platform::Point)> mouseDown;
        std::function<void(platform::Point)> mouseDragged;
        std::function<void(platform::Point)> mouseUp;
        std::function<void()> menuRequested;
    };
    virtual void setGestures(Gestures gestures) = 0;
};

}  // namespace tidewatch
