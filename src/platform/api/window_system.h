#pragma once

#include <cstdint>
#include <functional>

#include "base/signal.h"
#include "platform/api/screens.h"

namespace tidewatch::platform {

/// The windowing system's own name for a window of this program.
using WindowHandle = std::uint64_t;

/// What the desktop's frame adds to a window on each side, in device pixels.
struct FrameMargins {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
    bool operator==(const FrameMargins&) const = default;
};

/// How bright the frame around a window is to be.
enum class FrameVariant { light, dark };

/// What is asked of the desktop about windows beyond what the toolkit offers. Main thread only.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;

    /// Puts the window on every workspace and into no taskbar, and keeps the desktop from drawing a shadow or
    /// a frame of its own around it. To be called after the window exists and before each time it is shown.
    virtual void prepareFloating(WindowHandle window) = 0;

    /// Whether windows may have translucent pixels at this moment.
    [[nodiscard]] virtual bool isCompositing() const = 0;
    virtual Connection onCompositingChanged(std::function<void()> changed) = 0;

    /// Lets only `region`, in device pixels of the window, take the mouse; the rest lets clicks through.
    virtual void setInputRegion(WindowHandle window, Rectangle region) = 0;

    /// Asks the desktop which frame the window will get. To be called as soon as the window exists, so that
    /// the answer is there when frameMargins() looks for it.
    virtual void requestFrame(WindowHandle window) = 0;

    /// The frame that the window has or, before it is shown, will get, as far as the desktop has told; waits
    /// a few milliseconds at most.
    [[nodiscard]] virtual FrameMargins frameMargins(WindowHandle window) = 0;

    /// Asks for a frame that goes with the window's content. Holds from the next showing on at the latest; a
    /// desktop whose frames have one look only takes no notice.
    virtual void setFrameVariant(WindowHandle window, FrameVariant shade) = 0;

    /// Gives a window that is shown the focus and brings it before all others, whatever the user is doing in
    /// another application.
    virtual void activate(WindowHandle window) = 0;

    /// Calls `changed` with true when other windows cover all of `window`, with false when they no longer
    /// do. On a composited desktop a covered window may go unnoticed.
    virtual Connection onOcclusionChanged(WindowHandle window, std::function<void(bool covered)> changed) = 0;
};

}  // namespace tidewatch::platform
