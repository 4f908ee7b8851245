#pragma once

#include <functional>

namespace tidewatch::platform {

/// How the machine lets this process know that it is to end. Main thread only.
class ProcessEndings {
public:
    virtual ~ProcessEndings() = default;

    /// Calls `asked` when the process is asked to end: by a signal, or by a terminal or session that goes.
    virtual void onAsked(std::function<void()> asked) = 0;

    /// Calls `saving` when the session is about to end, which may still be called off.
    virtual void onSessionEnding(std::function<void()> saving) = 0;

    /// Calls `lost`, as the last thing, when the process ends because the display is gone. The main loop runs
    /// no more then.
    virtual void onDisplayLost(std::function<void()> lost) = 0;
};

}  // namespace tidewatch::platform
