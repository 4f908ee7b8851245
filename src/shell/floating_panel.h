#pragma once

#include <functional>
#include <optional>

#include "platform/api/screens.h"
#include "shell/floating_window.h"
#include "shell/pointer_drag.h"
#include "shell/window_place.h"

namespace tidewatch {

/// Where a floating window stands and what the mouse does to it, whatever it shows. Main thread only.
class FloatingPanel final {
public:
    /// The travel between mouse-down and mouse-up, in points, from which on a click is a drag.
    static constexpr double dragDistance = 5;

    /// What differs from one floating window to the next.
    struct Owner {
        StoredPlace place;
        /// Where it stands without a stored place on a screen; nullopt for where the window is already.
        std::function<std::optional<platform::Point>(PanelSize)> defaultPlace;
        std::function<void()> clicked;
        std::function<void()> menuRequested;  ///< may be empty
    };

    /// Places the window and takes its gestures. `window` must outlive this object; `screens` is asked here
    /// only.
    FloatingPanel(FloatingWindow& window, const platform::Screens& screens, Owner owner);

    void orderFrontRegardless() { window_.orderFrontRegardless(); }
    void orderOut() { window_.orderOut(); }
    [[nodiscard]] bool isVisible() const { return window_.isVisible(); }

    /// Keeps the top left corner where it is, and stores it.
    void resize(PanelSize size);

private:
    void place(const platform::Screens& screens);
    void mouseDown(platform::Point position);
    /// The window follows the mouse from `dragDistance` on.
    void mouseDragged(platform::Point position);
    /// Stores the place, whether it ends a drag or a click.
    void mouseUp(platform::Point position);

    FloatingWindow& window_;
    Owner owner_;
    PointerDrag drag_{dragDistance};
};

}  // namespace tidewatch
