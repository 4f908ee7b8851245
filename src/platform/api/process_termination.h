#pragma once

#include <functional>

namespace tidewatch::platform {

/// How the machine lets this process know that it is to end. Main thread only.
class ProcessTermination {
public:
    virtual ~ProcessTermination() = default;

    /// Calls `requested` when the process is requested to end: by a signal, or by a terminal or session that
    /// goes.
    virtual void onRequested(std::function<void()> requested) = 0;

    /// Calls `saving` when the session is about to end, which may still be called off.
    virtual void onSessionEnding(std::function<void()> saving) = 0;

    /// Calls `lost`, as the last thing, when the process ends because the display is gone. The main loop runs
    /// no more then.
    virtual void onDisplayLost(std::function<void()> lost) = 0;
};

}  // namespace tidewatch::platform
