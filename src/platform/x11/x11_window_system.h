#pragma once

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/api/window_system.h"
#include "platform/x11/x11_connection.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// The WindowSystem of an X server with an EWMH window manager.
class X11WindowSystem final : public WindowSystem {
public:
    X11WindowSystem();
    ~X11WindowSystem() override;

    void prepareFloating(WindowHandle window) override;
    void joinAllWorkspaces(WindowHandle window) override;
    [[nodiscard]] bool isCompositing() const override { return compositing_; }
    Connection onCompositingChanged(std::function<void()> changed) override;
    void setInputRegion(WindowHandle window, Rectangle region) override;
    Connection onOcclusionChanged(WindowHandle window, std::function<void(bool covered)> changed) override;
    void requestFrame(WindowHandle window) override;
    [[nodiscard]] FrameMargins frameMargins(WindowHandle window) override;
    Connection onFrameReported(WindowHandle window, std::function<void()> changed) override;
    void setMaximizable(WindowHandle window, bool maximizable) override;
    void setFrameVariant(WindowHandle window, FrameVariant shade) override;
    void activate(WindowHandle window) override;

private:
    void watchCompositor();
    void readEvents();
    /// In addition to what is already watched.
    void watch(xcb_window_t window, std::uint32_t events);
    void updateCompositing();
    [[nodiscard]] FrameMargins estimatedFrame() const;
    void setMotifHints(xcb_window_t window, const std::vector<std::uint32_t>& hints);
    void keepOutOfTaskbar(xcb_window_t window);
    void waitForServer();
    [[nodiscard]] bool supports(xcb_atom_t feature) const;
    void sendToRoot(xcb_window_t window, xcb_atom_t message, std::array<std::uint32_t, 5> data);
    void setCardinal(xcb_window_t window, xcb_atom_t property, std::uint32_t value);

    X11Connection connection_;
    xcb_atom_t compositorSelection_;
    xcb_atom_t desktopAtom_;
    xcb_atom_t stateAtom_;
    xcb_atom_t skipTaskbarAtom_;
    xcb_atom_t skipPagerAtom_;
    xcb_atom_t shadowAtom_;
    xcb_atom_t supportedAtom_;
    xcb_atom_t frameExtentsAtom_;
    xcb_atom_t requestFrameExtentsAtom_;
    xcb_atom_t activeWindowAtom_;
    xcb_atom_t themeVariantAtom_;
    xcb_atom_t utf8Atom_;
    xcb_atom_t motifHintsAtom_;
    int selectionEvent_ = -1;
    bool compositing_ = false;
    Signal<> compositingChanged_;
    std::map<xcb_window_t, std::unique_ptr<Signal<bool>>> covered_;
    std::map<xcb_window_t, std::unique_ptr<Signal<>>> frameReported_;
    /// The properties of windows that must not be maximised, as they were.
    std::map<xcb_window_t, std::vector<std::uint32_t>> motifHints_;
    std::optional<FrameMargins> lastFrame_;  ///< of any window, in its normal size
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tidewatch::platform
