#include "shell/pointer_drag.h"

#include <cmath>

namespace tidewatch {

void PointerDrag::press(platform::Point pointer, platform::Point origin) {
    pressed_ = pointer;
    origin_ = origin;
    dragging_ = false;
}

std::optional<platform::Point> PointerDrag::move(platform::Point pointer) {
    dragging_ = dragging_ || travel(pointer) >= threshold_;
    if (!dragging_) return std::nullopt;
    return platform::Point{origin_.x + pointer.x - pressed_.x, origin_.y + pointer.y - pressed_.y};
}

bool PointerDrag::isClick(platform::Point pointer) const {
    return travel(pointer) < threshold_;
}

double PointerDrag::travel(platform::Point pointer) const {
    return std::hypot(pointer.x - pressed_.x, pointer.y - pressed_.y);
}

}  // namespace tidewatch
