#pragma once

#include <QAbstractAnimation>
#include <functional>

namespace tidewatch {

/// While running, calls `tick` on every display frame, or on every n-th.
class FrameTicker final : public QAbstractAnimation {
    Q_OBJECT

public:
    explicit FrameTicker(std::function<void()> tick, QObject* parent = nullptr);

    /// 1 or more.
    void setEvery(int frames) { every_ = frames; }
    [[nodiscard]] int every() const { return every_; }

    /// Endless.
    [[nodiscard]] int duration() const override { return -1; }

protected:
    void updateCurrentTime(int currentTime) override;

private:
    std::function<void()> tick_;
    int every_ = 1;
    int frames_ = 0;
};

}  // namespace tidewatch
