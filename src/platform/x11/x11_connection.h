#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewatch::platform {

/// Frees memory allocated by xcb.
struct XcbFree {
    void operator()(void* memory) const noexcept { std::free(memory); }
};
template <class T>
using XcbReply = std::unique_ptr<T, XcbFree>;

/// Our own connection to the X server, separate from the toolkit's: errors arrive as events and are ignored,
/// so that a window destroyed meanwhile does no harm. Main thread only.
class X11Connection final {
public:
    /// Connects to the server in DISPLAY; on failure alive() is false.
    X11Connection();

    [[nodiscard]] bool alive() const { return xcb_connection_has_error(connection_.get()) == 0; }
    [[nodiscard]] xcb_connection_t* get() const { return connection_.get(); }
    [[nodiscard]] xcb_window_t root() const { return root_; }
    [[nodiscard]] int screenNumber() const { return screenNumber_; }

    /// XCB_ATOM_NONE if the server cannot be reached.
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;
    [[nodiscard]] bool hasExtension(xcb_extension_t* extension) const;

    [[nodiscard]] std::optional<std::uint32_t> cardinal(xcb_window_t window, xcb_atom_t property) const;
    /// All values of a 32-bit property; empty without it.
    [[nodiscard]] std::vector<std::uint32_t> cardinals(xcb_window_t window, xcb_atom_t property) const;
    /// The strings of a property of zero-terminated strings.
    [[nodiscard]] std::vector<std::string> texts(xcb_window_t window, xcb_atom_t property) const;

    /// XCB_WINDOW_NONE for the root, and for a window that is gone.
    [[nodiscard]] xcb_window_t parentOf(xcb_window_t window) const;
    /// XCB_WINDOW_NONE if the pointer is over none of them.
    [[nodiscard]] xcb_window_t childBelowPointer(xcb_window_t window) const;

    /// The process that a window belongs to; nullopt if the server does not know or cannot tell.
    [[nodiscard]] std::optional<pid_t> processOf(xcb_window_t window) const;

    /// Waits until the server has carried out all requests.
    void sync() const;

    /// The next event without blocking, ignoring errors; null if there is none.
    [[nodiscard]] XcbReply<xcb_generic_event_t> pollEvent() const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const noexcept { xcb_disconnect(connection); }
    };

    int screenNumber_ = 0;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

}  // namespace tidewatch::platform
