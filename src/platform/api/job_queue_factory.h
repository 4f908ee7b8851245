#pragma once

#include <memory>
#include <string>

#include "base/serial_queue.h"

namespace tidewatch::platform {

/// How much of the processor a queue's jobs get while others want it.
enum class JobPriority {
    normal,
    low,  ///< what nobody else wants, as far as the system knows priorities
};

/// Creates queues for work that must not block the main thread.
class JobQueueFactory {
public:
    virtual ~JobQueueFactory() = default;

    /// A queue owned by the main thread; its results are delivered through the main loop, which must outlive
    /// it. `name` is the thread's name, at most 15 characters. Threads that a job starts have its priority.
    /// Main thread only.
    [[nodiscard]] virtual std::unique_ptr<JobQueue> makeQueue(const std::string& name,
                                                              JobPriority priority) = 0;
    [[nodiscard]] std::unique_ptr<JobQueue> makeQueue(const std::string& name) {
        return makeQueue(name, JobPriority::normal);
    }
};

}  // namespace tidewatch::platform
