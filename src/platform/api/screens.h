#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "base/signal.h"

namespace tidewatch::platform {

/// A point on the desktop, in points; y grows downward from the top edge of the main screen.
struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

/// A rectangle on the desktop, in points; `x`, `y` is its top left corner.
struct Rectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    /// The left and top edges belong to the rectangle, the right and bottom ones do not.
    [[nodiscard]] bool contains(Point point) const {
        return point.x >= x && point.x < x + width && point.y >= y && point.y < y + height;
    }
    bool operator==(const Rectangle&) const = default;
};

/// One screen: its whole area, and the part not covered by panels and docks.
struct Screen {
    Rectangle frame;
    Rectangle visibleFrame;
};

/// The desktop's current screens. Main thread only.
class Screens {
public:
    virtual ~Screens() = default;

    [[nodiscard]] virtual std::vector<Screen> all() const = 0;

    /// Returns nullopt if no screen is attached.
    [[nodiscard]] virtual std::optional<Screen> main() const = 0;

    /// Calls `changed` after screens were attached, detached, moved, resized or scaled, or their panels have
    /// changed: once for all changes that come together, and after the desktop has reacted by itself.
    virtual Connection onChanged(std::function<void()> changed) = 0;
};

}  // namespace tidewatch::platform
