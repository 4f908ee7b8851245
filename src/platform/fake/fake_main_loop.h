#pragma once

#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <mutex>

#include "platform/api/main_loop.h"
#include "platform/fake/fake_clock.h"

namespace tidewatch::platform {

/// A main loop that runs when told, by the time of a FakeClock.
class FakeMainLoop final : public MainLoop {
public:
    /// `clock` must outlive it.
    explicit FakeMainLoop(FakeClock& clock) : clock_(clock) {}
    FakeMainLoop(const FakeMainLoop&) = delete;
    FakeMainLoop& operator=(const FakeMainLoop&) = delete;

    void post(Job job) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> repeat(std::chrono::milliseconds interval, TimerMode mode,
                                                         Job fire) override;

    /// Fires the timers that are due, in the order in which they were made, then runs the posted jobs, those
    /// that they post included, until none is left. Time stands still.
    void run();

    /// The first half of run(): what the timers post waits.
    void fireDueTimers();

    /// Lets `duration` pass, stopping at each moment at which a timer is due to run().
    void runFor(std::chrono::milliseconds duration);

    /// What an open menu does to timers of TimerMode::defaultOnly.
    enum class Menu { closed, open };
    void setMenu(Menu menu) { menu_ = menu; }

    /// Timers that have not been destroyed.
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
    // Shared, because a timer's handle may outlive the loop by accident of a test's order of destruction.
    const std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
    int nextTimer_ = 0;
    Menu menu_ = Menu::closed;
    std::mutex jobsMutex_;
    std::deque<Job> jobs_;
};

}  // namespace tidewatch::platform
