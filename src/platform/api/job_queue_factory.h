#pragma once

#include <memory>
#include <string>

#include "base/serial_queue.h"

namespace tidewatch::platform {

/// Where work goes that must not keep the main thread waiting.
class JobQueueFactory {
public:
    virtual ~JobQueueFactory() = default;

    /// A queue of the main thread's; its results come back through the main loop, which must outlive it.
    /// `name` is how the queue's thread is called where threads are listed: 15 characters at most. Main
    /// thread only.
    [[nodiscard]] virtual std::unique_ptr<JobQueue> makeQueue(const std::string& name) = 0;
};

}  // namespace tidewatch::platform
