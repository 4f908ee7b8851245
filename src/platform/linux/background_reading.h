#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "platform/linux/patient_worker.h"

namespace tidewatch::platform {

/// A figure that may take long to read: it is read on a thread of its own, which the first question starts.
/// Not thread-safe.
template <class Value>
class BackgroundReading final {
public:
    /// The last reading that is complete, nullopt before the first. Starts another one, unless one is in
    /// progress; `read` runs on the other thread and must share what it uses.
    [[nodiscard]] std::optional<Value> latest(std::function<Value()> read) {
        if (!worker_) worker_.emplace();
        worker_->tryRun([state = state_, read = std::move(read)] {
            auto value = read();
            const std::lock_guard lock(state->mutex);
            state->value = std::move(value);
        });
        const std::lock_guard lock(state_->mutex);
        return state_->value;
    }

private:
    struct State {
        std::mutex mutex;
        std::optional<Value> value;
    };

    const std::shared_ptr<State> state_ = std::make_shared<State>();
    std::optional<PatientWorker> worker_;
};

}  // namespace tidewatch::platform
