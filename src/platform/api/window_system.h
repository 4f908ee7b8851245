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

/// Window management beyond what the toolkit offers. Main thread only.
class WindowSystem {
public:
    virtual ~WindowSystem() = default;

    /// Shows the window on every workspace, without a taskbar entry, and without the desktop's own shadow or
    /// frame. To be called after the window is created and before each time it is shown.
    virtual void prepareFloating(WindowHandle window) = 0;

    /// Requests every workspace for a visible window. To be called each time after it is shown: some desktops
    /// ignore what prepareFloating() requests of this.
    virtual void joinAllWorkspaces(WindowHandle window) = 0;

    /// Whether windows may have translucent pixels at this moment.
    [[nodiscard]] virtual bool isCompositing() const = 0;
    virtual Connection onCompositingChanged(std::function<void()> changed) = 0;

    /// Restricts mouse input to `region`, in device pixels of the window; clicks pass through the rest.
    virtual void setInputRegion(WindowHandle window, Rectangle region) = 0;

    /// Requests the margins of the frame that the window will get. To be called as soon as the window is
    /// created, so that they are available to frameMargins().
    virtual void requestFrame(WindowHandle window) = 0;

    /// The margins of the frame that the window has or, before it is shown, will get, as far as the desktop
    /// has reported them; waits a few milliseconds at most. An estimate for a window that is not shown yet
    /// on desktops that report nothing before.
    [[nodiscard]] virtual FrameMargins frameMargins(WindowHandle window) = 0;

    /// Calls `changed` when the desktop has reported the window's margins, also after it is shown.
    virtual Connection onFrameReported(WindowHandle window, std::function<void()> changed) = 0;

    /// Whether the desktop may maximise the window, by itself or for the user; initially it may.
    virtual void setMaximizable(WindowHandle window, bool maximizable) = 0;

    /// Requests a light or dark frame. Effective when the window is next shown at the latest; ignored by
    /// desktops whose frames have only one appearance.
    virtual void setFrameVariant(WindowHandle window, FrameVariant shade) = 0;

    /// Focuses and raises a visible window, even if the user is active in another application.
    virtual void activate(WindowHandle window) = 0;

    /// Calls `changed` with true when other windows cover all of `window`, with false when they no longer
    /// do. On a composited desktop a covered window may go unnoticed.
    virtual Connection onOcclusionChanged(WindowHandle window, std::function<void(bool covered)> changed) = 0;
};

}  // namespace tidewatch::platform
