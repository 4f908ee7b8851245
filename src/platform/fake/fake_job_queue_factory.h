#pragma once

#include <memory>
#include <string>

#include "platform/api/job_queue_factory.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// Queues without a thread: jobs run immediately or, while held, when somebody waits for them.
class FakeJobQueueFactory final : public JobQueueFactory {
public:
    /// `mainLoop` must outlive it.
    explicit FakeJobQueueFactory(MainLoop& mainLoop) : mainLoop_(mainLoop) {}

    using JobQueueFactory::makeQueue;
    [[nodiscard]] std::unique_ptr<JobQueue> makeQueue(const std::string& name, JobPriority priority) override;

    /// From now on jobs are deferred until release(), finish() or the destruction of their queue.
    void hold() { *isHeld_ = true; }

    /// Jobs run immediately again; deferred ones run when the next one is posted.
    void release() { *isHeld_ = false; }

private:
    class Queue;

    MainLoop& mainLoop_;
    const std::shared_ptr<bool> isHeld_ = std::make_shared<bool>(false);
};

}  // namespace tidewatch::platform
