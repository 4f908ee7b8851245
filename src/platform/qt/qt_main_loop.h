#pragma once

#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// The toolkit's event loop on the main thread. The application object must exist as long as this one.
class QtMainLoop final : public MainLoop {
public:
    void post(Job job) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> repeat(std::chrono::milliseconds interval, TimerMode mode,
                                                         Job fire) override;
};

}  // namespace tidewatch::platform
