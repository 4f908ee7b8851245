#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace tidewatch::platform {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread.
/// One instance in a process.
class TerminationSignals final {
public:
    /// Needs the toolkit's event loop to exist. A signal that came earlier ended the process.
    explicit TerminationSignals(std::function<void()> asked);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tidewatch::platform
