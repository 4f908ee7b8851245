#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace tidewatch {

/// Runs jobs one at a time, in posting order, off the thread that owns it. Jobs must not throw and may share
/// only thread-safe objects.
class JobQueue {
public:
    using Job = std::function<void()>;

    /// Waits for all jobs. Results delivered after that are dropped.
    virtual ~JobQueue() = default;

    /// Enqueues `job`. Thread-safe.
    virtual void post(Job job) = 0;

    /// Waits for all jobs posted before. Thread-safe; must not be called from a job.
    virtual void finish() = 0;

    /// For jobs: runs `result` later on the owner's thread, unless the queue has been destroyed by then.
    virtual void deliver(Job result) = 0;

    /// Runs `work()` as a job, then `then(result)` on the owner's thread. Both are copied.
    template <class Work, class Then>
    void run(Work work, Then then) {
        post([this, work = std::move(work), then = std::move(then)] {
            deliver([result = work(), then] { then(result); });
        });
    }
};

/// A queue with its own thread.
class SerialQueue final : public JobQueue {
public:
    /// `toOwner` posts a job to the thread that creates, owns and destroys this object; it is called from any
    /// thread, and only during this object's lifetime.
    explicit SerialQueue(std::function<void(Job)> toOwner);
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    ~SerialQueue() override;

    void post(Job job) override;
    void finish() override;
    void deliver(Job result) override;

private:
    void work();

    const std::function<void(Job)> toOwner_;
    // Lets a pending result detect that this object has been destroyed.
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Job> jobs_;
    std::uint64_t posted_ = 0;
    std::uint64_t done_ = 0;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace tidewatch
