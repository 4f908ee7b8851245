#pragma once

#include <memory>

#include "platform/api/process_termination.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// SIGTERM, SIGINT and SIGHUP, the session manager, and the toolkit's exit() when the X server connection is
/// lost. One instance per process.
class PosixProcessTermination final : public ProcessTermination {
public:
    /// `atTheEnd` is called after the onDisplayLost() callback: the last chance to write to disk.
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
