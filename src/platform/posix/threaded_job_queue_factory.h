#pragma once

#include "platform/api/job_queue_factory.h"
#include "platform/api/main_loop.h"

namespace tidewatch::platform {

/// Creates queues with a thread each.
class ThreadedJobQueueFactory final : public JobQueueFactory {
public:
    /// `mainLoop` must outlive it.
    explicit ThreadedJobQueueFactory(MainLoop& mainLoop) : mainLoop_(mainLoop) {}

    using JobQueueFactory::makeQueue;
    [[nodiscard]] std::unique_ptr<JobQueue> makeQueue(const std::string& name, JobPriority priority) override;

private:
    MainLoop& mainLoop_;
};

}  // namespace tidewatch::platform
