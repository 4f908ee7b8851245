#include "platform/linux/x11_active_application.h"

#include <unistd.h>
#include <xcb/res.h>

#include "platform/linux/process_identity.h"

namespace tidewatch::platform {

X11ActiveApplication::X11ActiveApplication(const X11Connection& connection, DesktopEntries& entries,
                                           AppId own)
    : connection_(connection),
      entries_(entries),
      own_(std::move(own)),
      activeWindowAtom_(connection.atom("_NET_ACTIVE_WINDOW")),
      applicationIdAtom_(connection.atom("_GTK_APPLICATION_ID")),
      canAskForProcess_(connection.hasExtension(&xcb_res_id)) {
    if (connection_.alive()) watch(connection_.root());
}

std::optional<AppId> X11ActiveApplication::current() {
    drainEvents();
    if (!connection_.alive()) return std::nullopt;
    if (stale_) {
        const auto window =
            connection_.cardinal(connection_.root(), activeWindowAtom_).value_or(XCB_WINDOW_NONE);
        if (window != window_ && window != XCB_WINDOW_NONE) watch(window);
        window_ = window;
        application_ = window == XCB_WINDOW_NONE ? std::nullopt : identify(window);
        stale_ = false;
    }
    return application_;
}

void X11ActiveApplication::drainEvents() {
    while (const auto event = connection_.pollEvent()) {
        const auto type = event->response_type & 0x7f;
        if (type == XCB_DESTROY_NOTIFY) stale_ = true;
        if (type != XCB_PROPERTY_NOTIFY) continue;
        const auto& change = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
        const bool focusMoved = change.window == connection_.root() && change.atom == activeWindowAtom_;
        const bool renamed = change.window == window_ &&
                             (change.atom == XCB_ATOM_WM_CLASS || change.atom == applicationIdAtom_);
        stale_ = stale_ || focusMoved || renamed;
    }
}

void X11ActiveApplication::watch(xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection_.get());
}

std::optional<AppId> X11ActiveApplication::identify(xcb_window_t window) {
    const auto owner = process(window);
    if (owner == getpid()) return own_;
    if (const auto ids = connection_.texts(window, applicationIdAtom_);
        !ids.empty() && !ids.front().empty()) {
        return AppId(ids.front());
    }
    if (owner) {
        if (auto id = sandboxedApplication(*owner)) return AppId(std::move(*id));
    }
    const auto names = connection_.texts(window, XCB_ATOM_WM_CLASS);
    const std::string instance = names.empty() ? "" : names[0];
    const std::string windowClass = names.size() < 2 ? "" : names[1];
    if (auto id = entries_.idForWindow(instance, windowClass)) return AppId(std::move(*id));
    const auto& name = windowClass.empty() ? instance : windowClass;
    return name.empty() ? std::nullopt : std::optional(AppId(name));
}

std::optional<pid_t> X11ActiveApplication::process(xcb_window_t window) const {
    if (!canAskForProcess_) return std::nullopt;
    // The server knows the process at the other end of the connection; what a window says of itself may be a
    // number that means something inside a sandbox only.
    const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(connection_.get(), 1, &spec);
    const XcbReply<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(connection_.get(), cookie, nullptr));
    if (!reply) return std::nullopt;
    for (auto ids = xcb_res_query_client_ids_ids_iterator(reply.get()); ids.rem > 0;
         xcb_res_client_id_value_next(&ids)) {
        if (xcb_res_client_id_value_value_length(ids.data) > 0) {
            return static_cast<pid_t>(*xcb_res_client_id_value_value(ids.data));
        }
    }
    return std::nullopt;
}

}  // namespace tidewatch::platform
