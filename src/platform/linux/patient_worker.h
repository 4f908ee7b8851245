#pragma once

#include <functional>
#include <memory>

namespace tidewatch::platform {

/// A thread for calls to something that may never respond. Nobody waits for it, not even at the end: what a
/// job uses must be shared with it.
class PatientWorker final {
public:
    using Job = std::function<void()>;

    PatientWorker();
    PatientWorker(const PatientWorker&) = delete;
    PatientWorker& operator=(const PatientWorker&) = delete;

    /// Lets a running job finish on its own; the thread ends after it.
    ~PatientWorker();

    /// Runs `job`, unless one is running; returns whether it does.
    bool tryRun(Job job);

private:
    struct State;
    const std::shared_ptr<State> state_;
};

}  // namespace tidewatch::platform
