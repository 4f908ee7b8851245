#include "platform/qt/qt_main_loop.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>

namespace tidewatch::platform {

namespace {

std::chrono::milliseconds wholeMilliseconds(std::chrono::nanoseconds duration) {
    return std::chrono::ceil<std::chrono::milliseconds>(duration);
}

bool menuIsOpen() {
    return QApplication::activePopupWidget() != nullptr;
}

}  // namespace

/// One toolkit timer shared by several listeners. Midnight may pass between two timers, but hardly within
/// one.
class QtMainLoop::TimerGroup final : public std::enable_shared_from_this<TimerGroup> {
public:
    struct Listener {
        TimerMode mode;
        Job fire;
    };

    explicit TimerGroup(std::chrono::nanoseconds interval)
        : interval_(interval), due_(std::chrono::steady_clock::now() + interval) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setSingleShot(true);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { fire(); });
        timer_.start(wholeMilliseconds(interval));
    }

    /// Whether a listener that joins now still waits for most of an interval.
    [[nodiscard]] bool isYoung() const { return timer_.remainingTimeAsDuration() >= interval_ * 4 / 5; }
    [[nodiscard]] std::chrono::nanoseconds interval() const { return interval_; }

    void join(std::weak_ptr<Listener> listener) { listeners_.push_back(std::move(listener)); }

private:
    void fire() {
        // A listener may destroy its timer, even the last one, or create another.
        const auto self = shared_from_this();
        startNext();
        std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
        for (const auto& each : std::vector(listeners_)) {
            const auto listener = each.lock();
            if (listener && (listener->mode == TimerMode::common || !menuIsOpen())) listener->fire();
        }
    }

    /// A repeating timer of the toolkit counts whole milliseconds, and after a firing that came more than an
    /// interval late it starts afresh. Each start here makes up for the rounding and the lateness before it.
    void startNext() {
        const auto now = std::chrono::steady_clock::now();
        due_ += (std::max(now - due_, std::chrono::nanoseconds::zero()) / interval_ + 1) * interval_;
        timer_.start(wholeMilliseconds(due_ - now));
    }

    const std::chrono::nanoseconds interval_;
    std::chrono::steady_clock::time_point due_;
    QTimer timer_;
    std::vector<std::weak_ptr<Listener>> listeners_;
};

namespace {

/// A listener's membership in a group.
template <class TimerGroup>
class Subscription final : public RepeatingTimer {
public:
    Subscription(std::shared_ptr<TimerGroup> group, typename TimerGroup::Listener listener)
        : group_(std::move(group)),
          listener_(std::make_shared<typename TimerGroup::Listener>(std::move(listener))) {
        group_->join(listener_);
    }

private:
    std::shared_ptr<TimerGroup> group_;
    std::shared_ptr<typename TimerGroup::Listener> listener_;
};

}  // namespace

QtMainLoop::QtMainLoop() = default;
QtMainLoop::~QtMainLoop() = default;

void QtMainLoop::post(Job job) {
    QMetaObject::invokeMethod(qApp, std::move(job), Qt::QueuedConnection);
}

std::unique_ptr<RepeatingTimer> QtMainLoop::repeat(std::chrono::nanoseconds interval, TimerMode mode,
                                                   Job fire) {
    return std::make_unique<Subscription<TimerGroup>>(group(interval),
                                                      TimerGroup::Listener{mode, std::move(fire)});
}

std::shared_ptr<QtMainLoop::TimerGroup> QtMainLoop::group(std::chrono::nanoseconds interval) {
    std::erase_if(groups_, [](const auto& group) { return group.expired(); });
    for (const auto& each : groups_) {
        auto group = each.lock();
        if (group->interval() == interval && group->isYoung()) return group;
    }
    auto made = std::make_shared<TimerGroup>(interval);
    groups_.push_back(made);
    return made;
}

}  // namespace tidewatch::platform
