#include "platform/x11/x11_clipboard_guard.h"

#include <poll.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <chrono>

namespace tidewatch::platform {

namespace {

/// Ample for an application that responds at all, and too short to miss a tick.
constexpr auto timeout = std::chrono::milliseconds(500);

/// All key combinations that the toolkit takes for a paste on any desktop.
bool isPaste(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_V:
            return event.modifiers().testFlag(Qt::ControlModifier);
        case Qt::Key_Insert:
            return event.modifiers().testFlag(Qt::ShiftModifier);
        default:
            return event.key() == Qt::Key_Paste || event.key() == Qt::Key_F18;
    }
}

bool isMiddleButton(const QEvent& event) {
    return static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton;
}

}  // namespace

X11ClipboardGuard::X11ClipboardGuard(pid_t own)
    : own_(own), clipboardAtom_(connection_.atom("CLIPBOARD")), targetsAtom_(connection_.atom("TARGETS")) {
    QCoreApplication::instance()->installEventFilter(this);
    // At each change a text field would read the clipboard, only to know whether there is anything to paste.
    QGuiApplication::clipboard()->blockSignals(true);
}

bool X11ClipboardGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        return watched->inherits("QLineEdit") && !ownerResponds(clipboardAtom_);
    }
    // An event reaches its window first.
    if (!watched->isWindowType()) return false;
    switch (event->type()) {
        case QEvent::KeyPress: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            if (!isPaste(key)) return false;
            const bool fromSelection =
                key.key() == Qt::Key_Insert && key.modifiers().testFlag(Qt::ControlModifier);
            return !ownerResponds(fromSelection ? xcb_atom_t{XCB_ATOM_PRIMARY} : clipboardAtom_);
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (!isMiddleButton(*event)) return false;
            middleButtonDropped_ = !ownerResponds(XCB_ATOM_PRIMARY);
            return middleButtonDropped_;
        case QEvent::MouseButtonRelease:
            return isMiddleButton(*event) && middleButtonDropped_;
        default:
            return false;
    }
}

bool X11ClipboardGuard::ownerResponds(xcb_atom_t selection) const {
    if (!connection_.alive()) return true;
    auto* server = connection_.get();
    const XcbReply<xcb_get_selection_owner_reply_t> answer(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr));
    if (!answer || answer->owner == XCB_WINDOW_NONE) return true;
    // It could not respond while it waits here, and the toolkit does not ask it.
    if (connection_.processOf(answer->owner) == own_) return true;

    // A window of its own, so that late responses to earlier requests are not taken for this one.
    const auto window = xcb_generate_id(server);
    xcb_create_window(server, 0, window, connection_.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_convert_selection(server, window, selection, targetsAtom_, targetsAtom_, XCB_CURRENT_TIME);
    xcb_flush(server);
    bool responded = false;
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + timeout;
    for (auto now = Clock::now(); !responded && connection_.alive() && now < end; now = Clock::now()) {
        pollfd readable{xcb_get_file_descriptor(server), POLLIN, 0};
        ::poll(&readable, 1,
               static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(end - now).count()));
        while (const auto event = connection_.pollEvent()) {
            if ((event->response_type & 0x7f) != XCB_SELECTION_NOTIFY) continue;
            const auto& notify = *reinterpret_cast<const xcb_selection_notify_event_t*>(event.get());
            responded = responded || notify.requestor == window;
        }
    }
    xcb_destroy_window(server, window);
    xcb_flush(server);
    return responded;
}

}  // namespace tidewatch::platform
