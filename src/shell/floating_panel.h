#pragma once

#include "core/broadcaster.h"
#include "core/settings.h"
#include "platform/api/screens.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// Where the floating clock stands and what the mouse does to it. Main thread only.
class FloatingPanel final {
public:
    /// The travel between mouse-down and mouse-up, in points, from which on a click is a drag.
    static constexpr double dragDistance = 5;

    /// The distance from the edges of the screen at which a panel without a stored place is put.
    static constexpr double margin = 24;

    /// Places the window: at the stored origin if that lies on a screen, else in the top right corner of the
    /// main screen. All arguments must outlive this object.
    FloatingPanel(PanelWindow& window, Settings& settings, const platform::Screens& screens,
                  const Broadcaster& broadcaster);

    void orderFrontRegardless() { window_.orderFrontRegardless(); }
    void orderOut() { window_.orderOut(); }
    [[nodiscard]] bool isVisible() const { return window_.isVisible(); }

    /// Keeps the top left corner where it is, and stores it.
    void resize(PanelSize size);

    /// Positions are desktop points. The window follows the mouse from `dragDistance` on; every mouse-up
    /// stores the place, and one that ends a click posts FloatingPanelClicked.
    void mouseDown(platform::Point position);
    void mouseDragged(platform::Point position);
    void mouseUp(platform::Point position);

private:
    void place(const platform::Screens& screens);
    [[nodiscard]] double travel(platform::Point position) const;

    PanelWindow& window_;
    Settings& settings_;
    const Broadcaster& broadcaster_;
    platform::Point mouseDownLocation_;
    platform::Point originAtMouseDown_;
    bool dragging_ = false;
};

}  // namespace tidewatch
