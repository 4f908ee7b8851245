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

/// Runs jobs one after the other, in the order in which they were posted, beside the thread that owns it.
/// Jobs must not throw, and share with others only what is safe from several threads.
class JobQueue {
public:
    using Job = std::function<void()>;

    /// Returns when all jobs are done. What they deliver from then on is dropped.
    virtual ~JobQueue() = default;

    /// Runs `job` later. Safe from any thread.
    virtual void post(Job job) = 0;

    /// Returns when all jobs posted before are done. Safe from any thread, but not from a job.
    virtual void finish() = 0;

    /// For jobs: runs `result` later on the thread that owns the queue, unless the queue is gone by then.
    virtual void deliver(Job result) = 0;

    /// Runs `work()` as a job, and then `then(result)` on the thread that owns the queue. Both are copied.
    template <class Work, class Then>
    void run(Work work, Then then) {
        post([this, work = std::move(work), then = std::move(then)] {
            deliver([result = work(), then] { then(result); });
        });
    }
};

/// A queue with a thread of its own.
class SerialQueue final : public JobQueue {
public:
    /// `toOwner` runs a job later on the thread that makes, owns and destroys this object; it is called from
    /// any thread, and only as long as this object lives.
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
    // Tells a result that arrives whether this object still is there.
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
