#include "ui/backgrounds/frame_ticker.h"

#include <utility>

namespace tidewatch {

FrameTicker::FrameTicker(std::function<void()> tick, QObject* parent)
    : QAbstractAnimation(parent), tick_(std::move(tick)) {}

void FrameTicker::updateCurrentTime(int) {
    frames_ = (frames_ + 1) % every_;
    if (frames_ == 0) tick_();
}

}  // namespace tidewatch
