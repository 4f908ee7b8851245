#include "platform/x11/x11_window_system.h"

#include <fmt/format.h>
#include <poll.h>
#include <xcb/shape.h>
#include <xcb/xfixes.h>

#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <utility>

namespace tidewatch::platform {

namespace {

constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;

/// The source of a request.
constexpr std::uint32_t anApplication = 1;

/// Requests on behalf of the user, like those of a taskbar, are exempt from focus stealing prevention.
constexpr std::uint32_t actsForTheUser = 2;

/// Far more than a healthy desktop needs, and too short to be noticed.
constexpr auto frameTimeout = std::chrono::milliseconds(10);

/// Covers the title bars of most desktops. A window that is a few pixels too small for a moment goes
/// unnoticed; one that is too large for its screen would be maximised.
constexpr FrameMargins usualFrame{.top = 40};

// _MOTIF_WM_HINTS
constexpr std::size_t motifHintsSize = 5;
constexpr std::uint32_t motifHasFunctions = 1;
constexpr std::uint32_t allButMaximizing = 2 | 4 | 8 | 32;  // resize, move, minimise, close

constexpr std::uint32_t frameAndEnd = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

xcb_window_t xWindow(WindowHandle window) {
    return static_cast<xcb_window_t>(window);
}

}  // namespace

X11WindowSystem::X11WindowSystem()
    : compositorSelection_(connection_.atom(fmt::format("_NET_WM_CM_S{}", connection_.screenNumber()))),
      desktopAtom_(connection_.atom("_NET_WM_DESKTOP")),
      stateAtom_(connection_.atom("_NET_WM_STATE")),
      skipTaskbarAtom_(connection_.atom("_NET_WM_STATE_SKIP_TASKBAR")),
      skipPagerAtom_(connection_.atom("_NET_WM_STATE_SKIP_PAGER")),
      shadowAtom_(connection_.atom("_COMPTON_SHADOW")),
      supportedAtom_(connection_.atom("_NET_SUPPORTED")),
      frameExtentsAtom_(connection_.atom("_NET_FRAME_EXTENTS")),
      requestFrameExtentsAtom_(connection_.atom("_NET_REQUEST_FRAME_EXTENTS")),
      activeWindowAtom_(connection_.atom("_NET_ACTIVE_WINDOW")),
      themeVariantAtom_(connection_.atom("_GTK_THEME_VARIANT")),
      utf8Atom_(connection_.atom("UTF8_STRING")),
      motifHintsAtom_(connection_.atom("_MOTIF_WM_HINTS")) {
    if (!connection_.alive()) return;
    watchCompositor();
    updateCompositing();
    notifier_ =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { readEvents(); });
}

X11WindowSystem::~X11WindowSystem() = default;

void X11WindowSystem::prepareFloating(WindowHandle window) {
    if (!connection_.alive()) return;
    setCardinal(xWindow(window), desktopAtom_, everyDesktop);
    setCardinal(xWindow(window), shadowAtom_, 0);
    keepOutOfTaskbar(xWindow(window));
    waitForServer();
}

void X11WindowSystem::joinAllWorkspaces(WindowHandle window) {
    if (!connection_.alive()) return;
    sendToRoot(xWindow(window), desktopAtom_, {everyDesktop, anApplication});
    xcb_flush(connection_.get());
}

Connection X11WindowSystem::onCompositingChanged(std::function<void()> changed) {
    return compositingChanged_.connect(std::move(changed));
}

void X11WindowSystem::setInputRegion(WindowHandle window, Rectangle region) {
    if (!connection_.hasExtension(&xcb_shape_id)) return;
    const xcb_rectangle_t rectangle{static_cast<std::int16_t>(region.x), static_cast<std::int16_t>(region.y),
                                    static_cast<std::uint16_t>(region.width),
                                    static_cast<std::uint16_t>(region.height)};
    xcb_shape_rectangles(connection_.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                         xWindow(window), 0, 0, 1, &rectangle);
    xcb_flush(connection_.get());
}

Connection X11WindowSystem::onOcclusionChanged(WindowHandle window,
                                               std::function<void(bool covered)> changed) {
    auto& signal = covered_[xWindow(window)];
    if (!signal) signal = std::make_unique<Signal<bool>>();
    if (connection_.alive()) {
        watch(xWindow(window), XCB_EVENT_MASK_VISIBILITY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    }
    return signal->connect(std::move(changed));
}

void X11WindowSystem::requestFrame(WindowHandle window) {
    if (!connection_.alive() || !supports(requestFrameExtentsAtom_)) return;
    watch(xWindow(window), frameAndEnd);
    sendToRoot(xWindow(window), requestFrameExtentsAtom_, {});
    xcb_flush(connection_.get());
}

FrameMargins X11WindowSystem::frameMargins(WindowHandle window) {
    if (!connection_.alive()) return {};
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + frameTimeout;
    auto extents = connection_.cardinals(xWindow(window), frameExtentsAtom_);
    if (extents.empty() && !supports(requestFrameExtentsAtom_)) return estimatedFrame();
    // Any event may announce that the property has been set.
    for (auto now = Clock::now(); extents.empty() && now < end; now = Clock::now()) {
        pollfd server{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};
        ::poll(&server, 1, static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(end - now).count()));
        extents = connection_.cardinals(xWindow(window), frameExtentsAtom_);
    }
    waitForServer();
    if (extents.size() < 4) return {};
    const auto side = [&](std::size_t index) { return static_cast<int>(extents[index]); };
    lastFrame_ = {.left = side(0), .right = side(1), .top = side(2), .bottom = side(3)};
    return *lastFrame_;
}

FrameMargins X11WindowSystem::estimatedFrame() const {
    if (!supports(frameExtentsAtom_)) return {};
    return lastFrame_.value_or(usualFrame);
}

Connection X11WindowSystem::onFrameReported(WindowHandle window, std::function<void()> changed) {
    auto& signal = frameReported_[xWindow(window)];
    if (!signal) signal = std::make_unique<Signal<>>();
    if (connection_.alive()) watch(xWindow(window), frameAndEnd);
    return signal->connect(std::move(changed));
}

void X11WindowSystem::setMaximizable(WindowHandle window, bool maximizable) {
    if (!connection_.alive()) return;
    const auto id = xWindow(window);
    if (!maximizable) {
        auto hints = connection_.cardinals(id, motifHintsAtom_);
        motifHints_.emplace(id, hints);
        hints.resize(motifHintsSize);
        hints[0] |= motifHasFunctions;
        hints[1] = allButMaximizing;
        setMotifHints(id, hints);
    } else if (const auto found = motifHints_.find(id); found != motifHints_.end()) {
        setMotifHints(id, found->second);
        motifHints_.erase(found);
    }
    waitForServer();
}

void X11WindowSystem::setMotifHints(xcb_window_t window, const std::vector<std::uint32_t>& hints) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, motifHintsAtom_, motifHintsAtom_,
                        32, static_cast<std::uint32_t>(hints.size()), hints.data());
}

void X11WindowSystem::setFrameVariant(WindowHandle window, FrameVariant shade) {
    if (!connection_.alive()) return;
    const std::string_view variant = shade == FrameVariant::dark ? "dark" : "light";
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, xWindow(window), themeVariantAtom_,
                        utf8Atom_, 8, static_cast<std::uint32_t>(variant.size()), variant.data());
    waitForServer();
}

void X11WindowSystem::activate(WindowHandle window) {
    if (!connection_.alive()) return;
    sendToRoot(xWindow(window), activeWindowAtom_, {actsForTheUser, XCB_CURRENT_TIME});
    xcb_flush(connection_.get());
}

void X11WindowSystem::watchCompositor() {
    if (!connection_.hasExtension(&xcb_xfixes_id)) return;
    selectionEvent_ =
        xcb_get_extension_data(connection_.get(), &xcb_xfixes_id)->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    const XcbReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        connection_.get(), xcb_xfixes_query_version(connection_.get(), 1, 0), nullptr));
    xcb_xfixes_select_selection_input(connection_.get(), connection_.root(), compositorSelection_,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(connection_.get());
}

void X11WindowSystem::readEvents() {
    while (const auto event = connection_.pollEvent()) {
        const auto type = event->response_type & 0x7f;
        if (type == selectionEvent_) {
            updateCompositing();
        } else if (type == XCB_VISIBILITY_NOTIFY) {
            const auto& change = *reinterpret_cast<const xcb_visibility_notify_event_t*>(event.get());
            if (const auto found = covered_.find(change.window); found != covered_.end()) {
                found->second->emit(change.state == XCB_VISIBILITY_FULLY_OBSCURED);
            }
        } else if (type == XCB_PROPERTY_NOTIFY) {
            const auto& change = *reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
            const auto found = frameReported_.find(change.window);
            const bool reported = change.atom == frameExtentsAtom_ && change.state == XCB_PROPERTY_NEW_VALUE;
            if (reported && found != frameReported_.end()) found->second->emit();
        } else if (type == XCB_DESTROY_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get())->window;
            covered_.erase(window);
            frameReported_.erase(window);
            motifHints_.erase(window);
        }
    }
    if (!connection_.alive()) notifier_->setEnabled(false);
}

void X11WindowSystem::watch(xcb_window_t window, std::uint32_t events) {
    const auto cookie = xcb_get_window_attributes(connection_.get(), window);
    const XcbReply<xcb_get_window_attributes_reply_t> former(
        xcb_get_window_attributes_reply(connection_.get(), cookie, nullptr));
    if (former) events |= former->your_event_mask;
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &events);
    waitForServer();
}

void X11WindowSystem::updateCompositing() {
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection_.get(), xcb_get_selection_owner(connection_.get(), compositorSelection_), nullptr));
    const bool compositing = reply && reply->owner != XCB_WINDOW_NONE;
    if (std::exchange(compositing_, compositing) != compositing) compositingChanged_.emit();
}

void X11WindowSystem::keepOutOfTaskbar(xcb_window_t window) {
    // The toolkit adds its own states to these when it shows the window.
    const std::array states = {skipTaskbarAtom_, skipPagerAtom_};
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, stateAtom_, XCB_ATOM_ATOM, 32,
                        states.size(), states.data());
}

void X11WindowSystem::waitForServer() {
    // The server must have processed these requests before the toolkit's connection sends more.
    const XcbReply<xcb_get_input_focus_reply_t> roundTrip(
        xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    // Events that arrived with the reply no longer wake the notifier.
    QTimer::singleShot(0, notifier_.get(), [this] { readEvents(); });
}

bool X11WindowSystem::supports(xcb_atom_t feature) const {
    const auto supported = connection_.cardinals(connection_.root(), supportedAtom_);
    return std::ranges::find(supported, feature) != supported.end();
}

void X11WindowSystem::sendToRoot(xcb_window_t window, xcb_atom_t message, std::array<std::uint32_t, 5> data) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = message;
    std::ranges::copy(data, std::begin(event.data.data32));
    xcb_send_event(connection_.get(), 0, connection_.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
}

void X11WindowSystem::setCardinal(xcb_window_t window, xcb_atom_t property, std::uint32_t value) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_CARDINAL, 32, 1,
                        &value);
}

}  // namespace tidewatch::platform
