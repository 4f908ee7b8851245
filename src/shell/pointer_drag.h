#pragma once

#include <optional>

#include "platform/api/screens.h"

namespace tidewatch {

/// Tells a click from a drag, from a mouse-down to the mouse-up after it. Positions are desktop points.
class PointerDrag final {
public:
    /// `threshold` is the travel, in points, from which on a click is a drag.
    explicit PointerDrag(double threshold) : threshold_(threshold) {}

    /// `origin` is where the window stands that may be dragged.
    void press(platform::Point pointer, platform::Point origin);

    /// Where the window belongs now; nullopt as long as it may still be a click. Once it is a drag it stays
    /// one.
    [[nodiscard]] std::optional<platform::Point> move(platform::Point pointer);

    /// Whether a mouse-up there ends a click.
    [[nodiscard]] bool isClick(platform::Point pointer) const;

private:
    [[nodiscard]] double travel(platform::Point pointer) const;

    double threshold_;
    platform::Point pressed_;
    platform::Point origin_;
    bool dragging_ = false;
};

}  // namespace tidewatch
