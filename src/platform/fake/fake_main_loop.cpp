#include "platform/fake/fake_main_loop.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tidewatch::platform {

class FakeMainLoop::Handle final : public RepeatingTimer {
public:
    Handle(std::weak_ptr<Timers> timers, int id) : timers_(std::move(timers)), id_(id) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() override {
        if (const auto timers = timers_.lock()) timers->erase(id_);
    }

private:
    const std::weak_ptr<Timers> timers_;
    const int id_;
};

void FakeMainLoop::post(Job job) {
    const std::lock_guard lock(jobsMutex_);
    jobs_.push_back(std::move(job));
}

std::unique_ptr<RepeatingTimer> FakeMainLoop::repeat(std::chrono::nanoseconds interval, TimerMode mode,
                                                     Job fire) {
    const auto id = nextTimer_++;
    timers_->emplace(id, Timer{interval, mode, std::move(fire), clock_.monotonic() + interval});
    return std::make_unique<Handle>(timers_, id);
}

void FakeMainLoop::run() {
    fireDueTimers();
    runJobs();
}

void FakeMainLoop::runFor(std::chrono::milliseconds duration) {
    const auto end = clock_.monotonic() + duration;
    run();
    while (true) {
        const auto next = std::ranges::min_element(*timers_, {}, [](const auto& t) { return t.second.due; });
        if (next == timers_->end() || next->second.due > end) break;
        clock_.advance(std::chrono::ceil<std::chrono::milliseconds>(next->second.due - clock_.monotonic()));
        run();
    }
    clock_.advance(std::chrono::ceil<std::chrono::milliseconds>(end - clock_.monotonic()));
    run();
}

void FakeMainLoop::fireDueTimers() {
    const auto now = clock_.monotonic();
    for (auto it = timers_->begin(); it != timers_->end();) {
        const auto id = it->first;
        auto& timer = it->second;
        if (timer.due <= now) {
            timer.due += ((now - timer.due) / timer.interval + 1) * timer.interval;
            if (timer.mode == TimerMode::common || menu_ == Menu::closed) {
                const auto fire = timer.fire;  // a timer may destroy itself
                fire();
            }
        }
        it = timers_->upper_bound(id);
    }
}

void FakeMainLoop::runJobs() {
    while (true) {
        std::optional<Job> job;
        {
            const std::lock_guard lock(jobsMutex_);
            if (jobs_.empty()) return;
            job = std::move(jobs_.front());
            jobs_.pop_front();
        }
        (*job)();
    }
}

}  // namespace tidewatch::platform
