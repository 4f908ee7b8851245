#pragma once

#include <functional>

#include "platform/api/screens.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// Where a floating window lies: above all other windows, or below them on the desktop.
enum class WindowLayer { above, below };

/// A borderless window in its layer, on every workspace, in no taskbar, never with the focus. Updates what it
/// shows by itself. Positions are desktop points of the panel's top left corner, whatever lies around it.
class FloatingWindow {
public:
    virtual ~FloatingWindow() = default;

    [[nodiscard]] virtual PanelSize panelSize() const = 0;
    [[nodiscard]] virtual platform::Point origin() const = 0;
    virtual void setOrigin(platform::Point origin) = 0;

    /// Changes the size about the top left corner, in a short movement if the window is on screen.
    virtual void resize(PanelSize size) = 0;

    /// Puts it on the screen, before the others of its layer, without activating it.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;

    /// What the mouse does to the window where no control of its content takes it; positions are desktop
    /// points.
    struct Gestures {
        std::function<void(platform::Point)> mouseDown;
        std::function<void(platform::Point)> mouseDragged;
        std::function<void(platform::Point)> mouseUp;
        std::function<void()> menuRequested;
    };
    virtual void setGestures(Gestures gestures) = 0;
};

}  // namespace tidewatch
