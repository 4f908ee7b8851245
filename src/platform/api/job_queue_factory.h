#pragma once

#include <memory>
#include <string>

#include "base/serial_queue.h"

namespace tidewatch::platform {

/// Creates queues for work that must not block the main thread.
class JobQueueFactory {
public:
    virtual ~JobQueueFactory() = default;

    /// A queue owned by the main thread; its results are delivered through the main loop, which must outlive
    /// it. `name` is the thread's name, at most 15 characters. Main thread only.
    [[nodiscard]] virtual std::unique_ptr<JobQueue> makeQueue(const std::string& name) = 0;
};

}  // namespace tidewatch::platform
