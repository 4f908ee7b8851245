#pragma once

#include <memory>

#include "platform/api/process_termination.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// SIGTERM, SIGINT and SIGHUP, the session manager, and the toolkit's exit when the X server is gone.
/// One instance in a process.
class PosixProcessTermination final : public ProcessTermination {
public:
    /// `atTheEnd` is called after what onDisplayLost() was given: the last moment to bring something to the
    /// disk.
    explicit PosixProcessTermination(std::function<void()> atTheEnd);
    ~PosixProcessTermination() override;
    PosixProcessTermination(const PosixProcessTermination&) = delete;
    PosixProcessTermination& operator=(const PosixProcessTermination&) = delete;

    void onRequested(std::function<void()> requested) override;
    void onSessionEnding(std::function<void()> saving) override;
    void onDisplayLost(std::function<void()> lost) override;

private:
    const std::function<void()> atTheEnd_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tidewatch::platform
