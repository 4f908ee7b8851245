#pragma once

#include <memory>

#include "system/speed_tester.h"
#include "system/system_monitor.h"

namespace tidewatch {

/// Runs the monitor while anyone watches and it is not paused. When nobody watches any longer, a speed test
/// is cancelled, too. Main thread only.
class SystemWatch final {
public:
    /// Lasts until the last copy is destroyed.
    using Token = std::shared_ptr<void>;

    /// Both must outlive this object and its tokens.
    SystemWatch(SystemMonitor& monitor, SpeedTester& speed) : monitor_(monitor), speed_(speed) {}

    [[nodiscard]] Token watch();

    /// While paused nobody can see what is watched. A speed test goes on.
    void setPaused(bool paused);

private:
    void stop();
    void apply();

    SystemMonitor& monitor_;
    SpeedTester& speed_;
    std::weak_ptr<void> current_;
    bool paused_ = false;
};

}  // namespace tidewatch
