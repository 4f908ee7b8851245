#pragma once

#include <functional>
#include <optional>

#include "platform/api/screens.h"
#include "shell/floating_window.h"
#include "shell/pointer_drag.h"
#include "shell/window_place.h"

namespace tidewatch {

/// The position and mouse handling of a floating window, whatever its content. Main thread only.
class FloatingPanel final {
public:
    /// The minimum travel between mouse-down and mouse-up, in points, that makes a click a drag.
    static constexpr double dragDistance = 5;

    /// What differs between floating windows.
    struct Owner {
        StoredPlace place;
        /// The position without a stored one on a screen; nullopt to keep the window's current position.
        std::function<std::optional<platform::Point>(PanelSize)> defaultPlace;
        std::function<void()> clicked;
        std::function<void()> menuRequested;  ///< may be empty
    };

    /// Positions the window and handles its gestures; when the screens change, restores its position as far
    /// as they show it. Both references must outlive this object.
    FloatingPanel(FloatingWindow& window, platform::Screens& screens, Owner owner);

    void orderFrontRegardless() { window_.orderFrontRegardless(); }
    void orderOut() { window_.orderOut(); }
    [[nodiscard]] bool isVisible() const { return window_.isVisible(); }

    /// Keeps the top left corner in place, and stores it.
    void resize(PanelSize size);

private:
    [[nodiscard]] std::optional<platform::Point> wantedPlace() const;
    void adaptToScreens();
    void mouseDown(platform::Point position);
    /// The window follows the mouse from `dragDistance` on.
    void mouseDragged(platform::Point position);
    /// Stores the position, after a drag as well as a click.
    void mouseUp(platform::Point position);

    FloatingWindow& window_;
    platform::Screens& screens_;
    Owner owner_;
    Connection screenChanges_;
    PointerDrag drag_{dragDistance};
};

}  // namespace tidewatch
