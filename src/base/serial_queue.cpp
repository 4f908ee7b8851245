#include "base/serial_queue.h"

namespace tidewatch {

SerialQueue::SerialQueue(std::function<void(Job)> toOwner)
    : toOwner_(std::move(toOwner)), thread_([this] { work(); }) {}

SerialQueue::~SerialQueue() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void SerialQueue::post(Job job) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
        ++posted_;
    }
    changed_.notify_all();
}

void SerialQueue::finish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this, last = posted_] { return done_ >= last; });
}

void SerialQueue::deliver(Job result) {
    toOwner_([alive = std::weak_ptr(alive_), result = std::move(result)] {
        if (!alive.expired()) result();
    });
}

void SerialQueue::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
        if (jobs_.empty()) return;
        {
            const auto job = std::move(jobs_.front());
            jobs_.pop_front();
            lock.unlock();
            job();
        }
        lock.lock();
        ++done_;
        changed_.notify_all();
    }
}

}  // namespace tidewatch
