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

    /// Positions the window and handles its gestures. `window` must outlive this object; `screens` is only
    /// used here.
    FloatingPanel(FloatingWindow& window, const platform::Screens& screens, Owner owner);

    void orderFrontRegardless() { window_.orderFrontRegardless(); }
    void orderOut() { window_.orderOut(); }
    [[nodiscard]] bool isVisible() const { return window_.isVisible(); }

    /// Keeps the top left corner in place, and stores it.
    void resize(PanelSize size);

private:
    void place(const platform::Screens& screens);
    void mouseDown(platform::Point position);
    /// The window follows the mouse from `dragDistance` on.
    void mouseDragged(platform::Point position);
    /// Stores the position, after a drag as well as a click.
    void mouseUp(platform::Point position);

    FloatingWindow& window_;
    Owner owner_;
    PointerDrag drag_{dragDistance};
};

}  // namespace tidewatch
