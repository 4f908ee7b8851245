#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tidewatch::platform {

/// When a timer may fire.
enum class TimerMode {
    common,       ///< always, even while a menu is open or a window is being dragged
    defaultOnly,  ///< not while a menu is open; missed firings are dropped
};

/// A running repeating timer; stops on destruction. Main thread only.
class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;
};

/// The main thread's event loop.
class MainLoop {
public:
    using Job = std::function<void()>;

    virtual ~MainLoop() = default;

    /// Runs `job` on the main thread later, never inside this call; jobs run in posting order. Thread-safe.
    virtual void post(Job job) = 0;

    /// Calls `fire` on the main thread every `interval` (a millisecond or more), first after one interval,
    /// without drifting: fractions of a millisecond only make single firings up to a millisecond late. Missed
    /// firings (a blocked thread, a sleeping machine) are dropped, those after them come at their usual time.
    /// Timers of the same interval created shortly after one another fire in the same turn of the loop, in
    /// creation order, and the jobs they post run in that order; for this the later ones first fire up to a
    /// fifth of the interval early. The loop must outlive the timer. Main thread only.
    [[nodiscard]] virtual std::unique_ptr<RepeatingTimer> repeat(std::chrono::nanoseconds interval,
                                                                 TimerMode mode, Job fire) = 0;
};

}  // namespace tidewatch::platform
