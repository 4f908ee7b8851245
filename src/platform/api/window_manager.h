#pragma once

#include <cstdint>
#include <functional>

#include "base/signal.h"
#include "platform/api/screens.h"

namespace tidewatch::platform {

/// The windowing system's own name for a window of this program.
using WindowHandle = std::uint64_t;

/// What is asked of the desktop about windows beyond what the toolkit offers. Main thread only.
class WindowManager {
public:
    virtual ~WindowManager() = default;

    /// Puts the window on every workspace and into no taskbar, and keeps the desktop from drawing a shadow or
    /// a frame of its own around it. To be called after the window exists and before each time it is shown.
    virtual void prepareFloating(WindowHandle window) = 0;

    /// Whether windows may have translucent pixels at this moment.
    [[nodiscard]] virtual bool isCompositing() const = 0;
    virtual Connection onCompositingChanged(std::function<void()> changed) = 0;

    /// Lets only `region`, in device pixels of the window, take the mouse; the rest lets clicks through.
    virtual void setInputRegion(WindowHandle window, Rectangle region) = 0;

    /// Calls `changed` with true when other windows cover all of `window`, with false when they no longer
    /// do. On a composited desktop a covered window may go unnoticed.
    virtual Connection onCovered(WindowHandle window, std::function<void(bool covered)> changed) = 0;
};

}  // namespace tidewatch::platform
