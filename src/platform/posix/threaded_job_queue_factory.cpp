#include "platform/posix/threaded_job_queue_factory.h"

#include <pthread.h>
#include <sys/resource.h>

#include <utility>

namespace tidewatch::platform {

namespace {

// As a background job that never delays what the user does, but is not starved either.
void lowerPriority() {
    constexpr int nice = 10;
    // On this system a thread has a niceness of its own, which the threads that it starts inherit. If it
    // cannot be changed, the job runs all the same.
    static_cast<void>(::setpriority(PRIO_PROCESS, 0, nice));
}

}  // namespace

std::unique_ptr<JobQueue> ThreadedJobQueueFactory::makeQueue(const std::string& name, JobPriority priority) {
    auto queue =
        std::make_unique<SerialQueue>([&loop = mainLoop_](JobQueue::Job job) { loop.post(std::move(job)); });
    queue->post([name, priority] {
        ::pthread_setname_np(::pthread_self(), name.c_str());
        if (priority == JobPriority::low) lowerPriority();
    });
    return queue;
}

}  // namespace tidewatch::platform
