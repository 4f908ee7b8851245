#include "platform/fake/fake_job_queue_factory.h"

#include <deque>
#include <utility>

namespace tidewatch::platform {

class FakeJobQueueFactory::Queue final : public JobQueue {
public:
    Queue(MainLoop& mainLoop, std::shared_ptr<const bool> isHeld)
        : mainLoop_(mainLoop), isHeld_(std::move(isHeld)) {}
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    ~Queue() override { finishAll(); }

    void post(Job job) override {
        jobs_.push_back(std::move(job));
        if (!*isHeld_) finishAll();
    }
    void finish() override { finishAll(); }
    void deliver(Job result) override {
        mainLoop_.post([alive = std::weak_ptr(alive_), result = std::move(result)] {
            if (!alive.expired()) result();
        });
    }

private:
    void finishAll() {
        while (!jobs_.empty()) {
            const auto job = std::move(jobs_.front());
            jobs_.pop_front();
            job();
        }
    }

    MainLoop& mainLoop_;
    const std::shared_ptr<const bool> isHeld_;
    const std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
    std::deque<Job> jobs_;
};

std::unique_ptr<JobQueue> FakeJobQueueFactory::makeQueue(const std::string&, JobPriority) {
    return std::make_unique<Queue>(mainLoop_, isHeld_);
}

}  // namespace tidewatch::platform
