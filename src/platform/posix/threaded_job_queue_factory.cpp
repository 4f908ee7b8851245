#include "platform/posix/threaded_job_queue_factory.h"

#include <pthread.h>

#include <utility>

namespace tidewatch::platform {

std::unique_ptr<JobQueue> ThreadedJobQueueFactory::makeQueue(const std::string& name) {
    auto queue =
        std::make_unique<SerialQueue>([&loop = mainLoop_](JobQueue::Job job) { loop.post(std::move(job)); });
    queue->post([name] { ::pthread_setname_np(::pthread_self(), name.c_str()); });
    return queue;
}

}  // namespace tidewatch::platform
