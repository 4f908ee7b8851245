#pragma once

#include <optional>

#include "platform/api/screens.h"

namespace tidewatch {

/// Distinguishes a click from a drag between mouse-down and mouse-up. Positions are desktop points.
class PointerDrag final {
public:
    /// `threshold` is the minimum travel of a drag, in points.
    explicit PointerDrag(double threshold) : threshold_(threshold) {}

    /// `origin` is the position of the window to be dragged.
    void press(platform::Point pointer, platform::Point origin);

    /// The window's new position; nullopt while it may still be a click. Once a drag it stays a drag.
    [[nodiscard]] std::optional<platform::Point> move(platform::Point pointer);

    /// Whether a mouse-up at this position ends a click.
    [[nodiscard]] bool isClick(platform::Point pointer) const;

private:
    [[nodiscard]] double travel(platform::Point pointer) const;

    double threshold_;
    platform::Point pressed_;
    platform::Point origin_;
    bool dragging_ = false;
};

}  // namespace tidewatch
