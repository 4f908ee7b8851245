#pragma once

#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <mutex>

#include "platform/api/main_loop.h"
#include "platform/fake/fake_clock.h"

namespace tidewatch::platform {

/// A main loop driven by the test and a FakeClock.
class FakeMainLoop final : public MainLoop {
public:
    /// `clock` must outlive it.
    explicit FakeMainLoop(FakeClock& clock) : clock_(clock) {}
    FakeMainLoop(const FakeMainLoop&) = delete;
    FakeMainLoop& operator=(const FakeMainLoop&) = delete;

    void post(Job job) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> repeat(std::chrono::nanoseconds interval, TimerMode mode,
                                                         Job fire) override;

    /// Fires due timers in creation order, then runs posted jobs, including those they post, until none is
    /// left. Time does not advance.
    void run();

    /// The first half of run(): jobs posted by timers are not run.
    void fireDueTimers();

    /// Advances the clock by `duration`, calling run() whenever a timer is due.
    void runFor(std::chrono::milliseconds duration);

    /// Whether a menu is open, which suspends timers of TimerMode::defaultOnly.
    enum class Menu { closed, open };
    void setMenu(Menu menu) { menu_ = menu; }

    /// The number of existing timers.
    [[nodiscard]] std::size_t timerCount() const { return timers_->size(); }

private:
    struct Timer {
        std::chrono::nanoseconds interval;
        TimerMode mode;
        Job fire;
        std::chrono::nanoseconds due;
    };
    using Timers = std::map<int, Timer>;
    class Handle;

    void runJobs();

    FakeClock& clock_;
    // Shared, because a handle may outlive the loop depending on a test's order of destruction.
    const std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
    int nextTimer_ = 0;
    Menu menu_ = Menu::closed;
    std::mutex jobsMutex_;
    std::deque<Job> jobs_;
};

}  // namespace tidewatch::platform
