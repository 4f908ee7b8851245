#pragma once

#include <memory>
#include <string>

#include "platform/api/job_queue_factory.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// Queues without a thread: a job is done at once, or, while the background is held, when somebody waits for
/// it.
class FakeJobQueueFactory final : public JobQueueFactory {
public:
    /// `mainLoop` must outlive it.
    explicit FakeJobQueueFactory(MainLoop& mainLoop) : mainLoop_(mainLoop) {}

    [[nodiscard]] std::unique_ptr<JobQueue> makeQueue(const std::string& name) override;

    /// From now on jobs stay undone until release(), finish() or the end of their queue.
    void hold() { *isHeld_ = true; }

    /// Jobs are done at once again; those that waited are done when the next one is posted.
    void release() { *isHeld_ = false; }

private:
    class Queue;

    MainLoop& mainLoop_;
    const std::shared_ptr<bool> isHeld_ = std::make_shared<bool>(false);
};

}  // namespace tidewatch::platform
