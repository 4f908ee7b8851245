#pragma once

#include <functional>

namespace tidewatch::platform {

/// Notifies of events that end the process. Main thread only.
class ProcessTermination {
public:
    virtual ~ProcessTermination() = default;

    /// Calls `requested` when the process is asked to terminate: by a signal, or because its terminal or
    /// session is closing.
    virtual void onRequested(std::function<void()> requested) = 0;

    /// Calls `saving` when the session is about to end, which may still be cancelled.
    virtual void onSessionEnding(std::function<void()> saving) = 0;

    /// Calls `lost` as the last action when the process ends because the display connection is lost. The main
    /// loop no longer runs then.
    virtual void onDisplayLost(std::function<void()> lost) = 0;
};

}  // namespace tidewatch::platform
