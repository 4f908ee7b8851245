#pragma once

#include <memory>

#include "platform/api/process_endings.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// SIGTERM, SIGINT and SIGHUP, the session manager, and the toolkit's exit when the X server is gone.
/// One instance in a process.
class PosixProcessEndings final : public ProcessEndings {
public:
    /// `atTheEnd` is called after what onDisplayLost() was given: the last moment to bring something to the
    /// disk.
    explicit PosixProcessEndings(std::function<void()> atTheEnd);
    ~PosixProcessEndings() override;
    PosixProcessEndings(const PosixProcessEndings&) = delete;
    PosixProcessEndings& operator=(const PosixProcessEndings&) = delete;

    void onAsked(std::function<void()> asked) override;
    void onSessionEnding(std::function<void()> saving) override;
    void onDisplayLost(std::function<void()> lost) override;

private:
    const std::function<void()> atTheEnd_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tidewatch::platform
