#pragma once

#include <memory>
#include <vector>

#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// The toolkit's event loop on the main thread. The application object must outlive this one.
class QtMainLoop final : public MainLoop {
public:
    QtMainLoop();
    ~QtMainLoop() override;
    QtMainLoop(const QtMainLoop&) = delete;
    QtMainLoop& operator=(const QtMainLoop&) = delete;

    void post(Job job) override;
    [[nodiscard]] std::unique_ptr<RepeatingTimer> repeat(std::chrono::nanoseconds interval, TimerMode mode,
                                                         Job fire) override;

private:
    class TimerGroup;

    [[nodiscard]] std::shared_ptr<TimerGroup> group(std::chrono::nanoseconds interval);

    std::vector<std::weak_ptr<TimerGroup>> groups_;
};

}  // namespace tidewatch::platform
