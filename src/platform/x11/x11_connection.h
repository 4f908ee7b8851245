#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewatch::platform {

/// Frees what xcb hands out.
struct XcbFree {
    void operator()(void* memory) const noexcept { std::free(memory); }
};
template <class T>
using XcbReply = std::unique_ptr<T, XcbFree>;

/// A connection of our own to the X server, apart from the toolkit's: errors of its requests arrive as
/// events and are dropped, so that a window that vanishes meanwhile does no harm. Main thread only.
class X11Connection final {
public:
    /// To the server that DISPLAY names. A server that cannot be reached leaves it not alive.
    X11Connection();

    [[nodiscard]] bool alive() const { return xcb_connection_has_error(connection_.get()) == 0; }
    [[nodiscard]] xcb_connection_t* get() const { return connection_.get(); }
    [[nodiscard]] xcb_window_t root() const { return root_; }
    [[nodiscard]] int screenNumber() const { return screenNumber_; }

    /// XCB_ATOM_NONE if the server cannot be reached.
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;
    [[nodiscard]] bool hasExtension(xcb_extension_t* extension) const;

    [[nodiscard]] std::optional<std::uint32_t> cardinal(xcb_window_t window, xcb_atom_t property) const;
    /// All numbers of a property of 32 bits each; none without it.
    [[nodiscard]] std::vector<std::uint32_t> cardinals(xcb_window_t window, xcb_atom_t property) const;
    /// The texts of a property of one or more strings that end with a zero byte.
    [[nodiscard]] std::vector<std::string> texts(xcb_window_t window, xcb_atom_t property) const;

    /// The next event without waiting, errors left out; nothing if there is none.
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
