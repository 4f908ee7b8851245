#include "platform/x11/x11_active_application.h"

#include <unistd.h>

#include <QSocketNotifier>
#include <utility>

#include "platform/x11/x11_window_identity.h"

namespace tidewatch::platform {

namespace {

constexpr std::uint32_t nothing = 0;
constexpr std::uint32_t itsProperties = XCB_EVENT_MASK_PROPERTY_CHANGE;
constexpr std::uint32_t itsPropertiesAndEnd =
    XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

}  // namespace

X11ActiveApplication::X11ActiveApplication(const X11Connection& connection, DesktopEntries& entries,
                                           AppId own)
    : connection_(connection),
      entries_(entries),
      own_(std::move(own)),
      activeWindowAtom_(connection.atom("_NET_ACTIVE_WINDOW")),
      applicationIdAtom_(connection.atom("_GTK_APPLICATION_ID")) {
    if (!connection_.alive()) return;
    setWatched(connection_.root(), itsProperties);
    notifier_ =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { processEvents(); });
    // The program's own windows are about to be shown, and may be announced as active at once.
    refresh();
}

X11ActiveApplication::~X11ActiveApplication() = default;

std::optional<AppId> X11ActiveApplication::current() {
    processEvents();
    if (!connection_.alive()) return std::nullopt;
    if (!announced_ && activeWindow() != window_) invalidate();
    // A change during the query requires another one.
    constexpr int maxChecks = 3;
    for (int looks = 0; stale_ && looks < maxChecks; ++looks) refresh();
    return application_;
}

void X11ActiveApplication::refresh() {
    stale_ = false;
    window_ = activeWindow();
    if (isOwnWithoutFocus(window_)) window_ = former_;
    former_ = window_;
    if (window_ == XCB_WINDOW_NONE) return;
    setWatched(window_, itsPropertiesAndEnd);
    application_ = identify(window_);
    // Events received along with replies do not wake the notifier.
    processEvents();
}

xcb_window_t X11ActiveApplication::activeWindow() {
    const auto active = connection_.cardinal(connection_.root(), activeWindowAtom_);
    announced_ = active.has_value();
    return active ? *active : focusedWindow();
}

/// The window with the focus is often one inside the application's: the one that has a class is meant. The
/// root window has the focus after the focused window is gone; the window below the pointer then gets the
/// keys.
xcb_window_t X11ActiveApplication::focusedWindow() const {
    const XcbReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    auto window = focus ? focus->focus : xcb_window_t{XCB_WINDOW_NONE};
    const bool followsPointer = window == XCB_INPUT_FOCUS_POINTER_ROOT || window == connection_.root();
    if (followsPointer) window = connection_.childBelowPointer(connection_.root());
    while (window != XCB_WINDOW_NONE && window != connection_.root()) {
        if (!connection_.texts(window, XCB_ATOM_WM_CLASS).empty()) return window;
        window = connection_.parentOf(window);
    }
    return XCB_WINDOW_NONE;
}

bool X11ActiveApplication::isOwnWithoutFocus(xcb_window_t window) const {
    if (window == XCB_WINDOW_NONE || connection_.processOf(window) != getpid()) return false;
    constexpr std::uint32_t hasInput = 1;
    const auto hints = connection_.cardinals(window, XCB_ATOM_WM_HINTS);
    return hints.size() >= 2 && (hints[0] & hasInput) != 0 && hints[1] == 0;
}

void X11ActiveApplication::processEvents() {
    while (const auto event = connection_.pollEvent()) {
        if (!isRelevant(*event)) continue;
        if ((event->response_type & 0x7f) == XCB_DESTROY_NOTIFY) former_ = XCB_WINDOW_NONE;
        invalidate();
    }
    if (!connection_.alive() && notifier_) notifier_->setEnabled(false);
}

bool X11ActiveApplication::isRelevant(const xcb_generic_event_t& event) const {
    switch (event.response_type & 0x7f) {
        case XCB_DESTROY_NOTIFY:
            return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window_;
        case XCB_PROPERTY_NOTIFY: {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            if (change.window == connection_.root()) return change.atom == activeWindowAtom_;
            return change.window == window_ &&
                   (change.atom == XCB_ATOM_WM_CLASS || change.atom == applicationIdAtom_);
        }
        default:
            return false;
    }
}

/// Unsubscribe from a window that is no longer active: its events might not be consumed for hours.
void X11ActiveApplication::invalidate() {
    stale_ = true;
    application_.reset();
    if (window_ != XCB_WINDOW_NONE) setWatched(std::exchange(window_, XCB_WINDOW_NONE), nothing);
}

void X11ActiveApplication::setWatched(xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_.get());
}

std::optional<AppId> X11ActiveApplication::identify(xcb_window_t window) {
    const auto owner = connection_.processOf(window);
    if (owner == getpid()) return own_;
    if (auto id = registeredApplication(connection_, entries_, window, owner)) return id;
    // Better no application for a moment than one application's time under two names.
    stale_ = entries_.isReading();
    if (stale_) return std::nullopt;
    auto name = windowClass(connection_, window);
    return name.empty() ? std::nullopt : std::optional(AppId(std::move(name)));
}

}  // namespace tidewatch::platform
