#include "platform/x11/x11_input_activity.h"

#include <xcb/screensaver.h>

#include <cstdlib>

namespace tidewatch::platform {

namespace {

InputCoverage probe(const X11Connection& connection) {
    if (!connection.hasExtension(&xcb_screensaver_id)) return InputCoverage::nothing;
    const char* wayland = std::getenv("WAYLAND_DISPLAY");
    return wayland != nullptr && *wayland != '\0' ? InputCoverage::someWindows : InputCoverage::everything;
}

}  // namespace

X11InputActivity::X11InputActivity(const X11Connection& connection)
    : connection_(connection), coverage_(probe(connection)) {}

std::optional<double> X11InputActivity::secondsSinceLastInput() const {
    if (coverage_ == InputCoverage::nothing) return std::nullopt;
    const auto cookie = xcb_screensaver_query_info(connection_.get(), connection_.root());
    const XcbReply<xcb_screensaver_query_info_reply_t> reply(
        xcb_screensaver_query_info_reply(connection_.get(), cookie, nullptr));
    // Every client receives keyboard mapping events, even without subscribing; consume them.
    while (connection_.pollEvent()) {
    }
    if (!reply) return std::nullopt;
    return reply->ms_since_user_input / 1000.0;
}

}  // namespace tidewatch::platform
