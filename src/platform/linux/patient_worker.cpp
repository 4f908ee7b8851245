#include "platform/linux/patient_worker.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace tidewatch::platform {

struct PatientWorker::State {
    std::mutex mutex;
    std::condition_variable changed;
    Job job;
    bool isBusy = false;
    bool isEnding = false;
};

PatientWorker::PatientWorker() : state_(std::make_shared<State>()) {
    std::thread([state = state_] {
        std::unique_lock lock(state->mutex);
        while (true) {
            state->changed.wait(lock, [&] { return state->job || state->isEnding; });
            if (!state->job) return;
            auto job = std::exchange(state->job, nullptr);
            lock.unlock();
            job();
            job = nullptr;
            lock.lock();
            state->isBusy = false;
        }
    }).detach();
}

PatientWorker::~PatientWorker() {
    const std::lock_guard lock(state_->mutex);
    state_->isEnding = true;
    state_->job = nullptr;
    state_->changed.notify_one();
}

bool PatientWorker::tryRun(Job job) {
    const std::lock_guard lock(state_->mutex);
    if (state_->isBusy) return false;
    state_->isBusy = true;
    state_->job = std::move(job);
    state_->changed.notify_one();
    return true;
}

}  // namespace tidewatch::platform
