#include "platform/qt/qt_main_loop.h"

#include <QApplication>
#include <QTimer>

namespace tidewatch::platform {

namespace {

class QtRepeatingTimer final : public RepeatingTimer {
public:
    QtRepeatingTimer(std::chrono::milliseconds interval, TimerMode mode, MainLoop::Job fire) {
        // A precise timer keeps to its first beat: it neither drifts nor makes good what it missed.
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [mode, fire = std::move(fire)] {
            const bool menuOpen = QApplication::activePopupWidget() != nullptr;
            if (mode == TimerMode::common || !menuOpen) fire();
        });
        timer_.start(interval);
    }

private:
    QTimer timer_;
};

}  // namespace

void QtMainLoop::post(Job job) {
    QMetaObject::invokeMethod(qApp, std::move(job), Qt::QueuedConnection);
}

std::unique_ptr<RepeatingTimer> QtMainLoop::repeat(std::chrono::milliseconds interval, TimerMode mode,
                                                   Job fire) {
    return std::make_unique<QtRepeatingTimer>(interval, mode, std::move(fire));
}

}  // namespace tidewatch::platform
