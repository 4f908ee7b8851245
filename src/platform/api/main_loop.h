#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tidewatch::platform {

/// When a timer may fire.
enum class TimerMode {
    common,       ///< always, also while a menu is open or a window is being dragged
    defaultOnly,  ///< not while a menu is open; what it missed then is not made good
};

/// A running repeating timer; destroying it stops it. Main thread only.
class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;
};

/// The queue of jobs of the one main thread.
class MainLoop {
public:
    using Job = std::function<void()>;

    virtual ~MainLoop() = default;

    /// Runs `job` on the main thread later, never inside the caller; jobs run in the order in which they
    /// were posted. Safe from any thread.
    virtual void post(Job job) = 0;

    /// Calls `fire` on the main thread every `interval`, first after one interval, without drifting.
    /// Firings that were missed (a blocked thread, a sleeping machine) are not made good. Timers of the same
    /// interval that are made one soon after the other fire in the same turn of the loop, in the order in
    /// which they were made, and what they post runs in that order; the later ones fire for the first time
    /// up to a fifth of the interval early for it. The loop must outlive the timer. Main thread only.
    [[nodiscard]] virtual std::unique_ptr<RepeatingTimer> repeat(std::chrono::milliseconds interval,
                                                                 TimerMode mode, Job fire) = 0;
};

}  // namespace tidewatch::platform
