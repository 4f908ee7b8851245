#include "platform/x11/x11_connection.h"

#include <xcb/res.h>

namespace tidewatch::platform {

namespace {

constexpr std::uint32_t propertyWords = 1024;

XcbReply<xcb_get_property_reply_t> property(xcb_connection_t* connection, xcb_window_t window,
                                            xcb_atom_t name) {
    const auto cookie =
        xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, propertyWords);
    return XcbReply<xcb_get_property_reply_t>(xcb_get_property_reply(connection, cookie, nullptr));
}

}  // namespace

X11Connection::X11Connection() : connection_(xcb_connect(nullptr, &screenNumber_)) {
    if (!alive()) return;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(get()));
    for (int skipped = 0; skipped < screenNumber_ && screens.rem > 1; ++skipped) xcb_screen_next(&screens);
    root_ = screens.data->root;
}

xcb_atom_t X11Connection::atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(get(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool X11Connection::hasExtension(xcb_extension_t* extension) const {
    if (!alive()) return false;
    const auto* data = xcb_get_extension_data(get(), extension);
    return data != nullptr && data->present != 0;
}

std::optional<std::uint32_t> X11Connection::cardinal(xcb_window_t window, xcb_atom_t name) const {
    const auto all = cardinals(window, name);
    return all.empty() ? std::nullopt : std::optional(all.front());
}

std::vector<std::uint32_t> X11Connection::cardinals(xcb_window_t window, xcb_atom_t name) const {
    const auto reply = property(get(), window, name);
    if (!reply || reply->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::vector<std::string> X11Connection::texts(xcb_window_t window, xcb_atom_t name) const {
    const auto reply = property(get(), window, name);
    if (!reply || reply->format != 8) return {};
    std::vector<std::string> texts;
    std::string_view rest(static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len);
    while (!rest.empty()) {
        const auto end = rest.find('\0');
        texts.emplace_back(rest.substr(0, end));
        if (end == std::string_view::npos) break;
        rest.remove_prefix(end + 1);
    }
    return texts;
}

xcb_window_t X11Connection::parentOf(xcb_window_t window) const {
    const XcbReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(get(), xcb_query_tree(get(), window), nullptr));
    return reply ? reply->parent : xcb_window_t{XCB_WINDOW_NONE};
}

xcb_window_t X11Connection::childBelowPointer(xcb_window_t window) const {
    const XcbReply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(get(), xcb_query_pointer(get(), window), nullptr));
    return reply ? reply->child : xcb_window_t{XCB_WINDOW_NONE};
}

std::optional<pid_t> X11Connection::processOf(xcb_window_t window) const {
    if (!hasExtension(&xcb_res_id)) return std::nullopt;
    // The server knows the client's process id; the window's own property may hold one that is only valid
    // inside a sandbox.
    const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(get(), 1, &spec);
    const XcbReply<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(get(), cookie, nullptr));
    if (!reply) return std::nullopt;
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply.get()); ids.rem > 0;
         xcb_res_client_id_value_next(&ids)) {
        if (xcb_res_client_id_value_value_length(ids.data) > 0) {
            return static_cast<pid_t>(*xcb_res_client_id_value_value(ids.data));
        }
    }
    return std::nullopt;
}

void X11Connection::sync() const {
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(get(), xcb_get_input_focus(get()), nullptr));
}

XcbReply<xcb_generic_event_t> X11Connection::pollEvent() const {
    while (alive()) {
        XcbReply<xcb_generic_event_t> event(xcb_poll_for_event(get()));
        if (!event || event->response_type != 0) return event;
    }
    return nullptr;
}

}  // namespace tidewatch::platform
