#include "platform/x11/x11_clipboard_guard.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <atomic>
#include <optional>
#include <thread>

#include "tests/platform/x11/private_x_server.h"

namespace tidewatch::platform {
namespace {

/// Counts the events that reach it.
class CountingWindow final : public QWindow {
public:
    [[nodiscard]] int count() const { return count_; }

protected:
    bool event(QEvent* event) override {
        ++count_;
        return QWindow::event(event);
    }

private:
    int count_ = 0;
};

class X11ClipboardGuardTest : public testing::Test {
protected:
    /// Another program offers something for pasting.
    void offer(const char* selection) {
        xcb_set_selection_owner(server_.client(), owner_, server_.atom(selection), XCB_CURRENT_TIME);
        server_.sync();
    }

    /// Whether the event reaches its window.
    bool arrives(QEvent&& event) {
        const int before = window_.count();
        QCoreApplication::sendEvent(&window_, &event);
        return window_.count() > before;
    }
    bool arrives(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        return arrives(QKeyEvent(QEvent::KeyPress, key, modifiers));
    }
    bool arrives(QEvent::Type type, Qt::MouseButton button) {
        return arrives(QMouseEvent(type, QPointF(1, 1), QPointF(1, 1), button, button, Qt::NoModifier));
    }

    int argc_ = 3;
    char name_[5] = "test";
    char option_[10] = "-platform";
    char platform_[10] = "offscreen";
    char* argv_[4] = {name_, option_, platform_, nullptr};
    QGuiApplication application_{argc_, argv_};
    PrivateXServer server_;
    const xcb_window_t owner_ = server_.openWindow("Editor");
    // The other program is in fact this process.
    static constexpr pid_t nobody_ = 0;
    std::optional<X11ClipboardGuard> guard_{std::in_place, nobody_};
    CountingWindow window_;
};

TEST_F(X11ClipboardGuardTest, WhileTheClipboardsOwnerHangsNoPasteArrives) {
    offer("CLIPBOARD");
    EXPECT_FALSE(arrives(Qt::Key_V, Qt::ControlModifier));
    EXPECT_FALSE(arrives(Qt::Key_Insert, Qt::ShiftModifier));
    EXPECT_TRUE(arrives(Qt::Key_V, Qt::NoModifier));
    EXPECT_TRUE(arrives(Qt::Key_C, Qt::ControlModifier));
    EXPECT_TRUE(arrives(QEvent::MouseButtonPress, Qt::MiddleButton)) << "nobody owns what is selected";
}

TEST_F(X11ClipboardGuardTest, WhileTheSelectionsOwnerHangsNoMiddleButtonArrives) {
    offer("PRIMARY");
    EXPECT_FALSE(arrives(QEvent::MouseButtonPress, Qt::MiddleButton));
    EXPECT_FALSE(arrives(QEvent::MouseButtonRelease, Qt::MiddleButton));
    EXPECT_FALSE(arrives(Qt::Key_Insert, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_TRUE(arrives(QEvent::MouseButtonPress, Qt::LeftButton));
    EXPECT_TRUE(arrives(QEvent::MouseButtonRelease, Qt::LeftButton));
    EXPECT_TRUE(arrives(Qt::Key_V, Qt::ControlModifier)) << "nobody owns the clipboard";
}

TEST_F(X11ClipboardGuardTest, NobodyIsToldOfAChangeAndReadsIt) {
    int told = 0;
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &window_, [&] { ++told; });
    QGuiApplication::clipboard()->setText("copied");
    EXPECT_EQ(told, 0);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "copied");
}

TEST_F(X11ClipboardGuardTest, WithoutAnOwnerEverythingArrives) {
    EXPECT_TRUE(arrives(Qt::Key_V, Qt::ControlModifier));
    EXPECT_TRUE(arrives(QEvent::MouseButtonPress, Qt::MiddleButton));
    EXPECT_TRUE(arrives(QEvent::MouseButtonRelease, Qt::MiddleButton));
}

TEST_F(X11ClipboardGuardTest, WhatTheProgramItselfOffersCanBePasted) {
    guard_.emplace(::getpid());
    offer("CLIPBOARD");
    EXPECT_TRUE(arrives(Qt::Key_V, Qt::ControlModifier));
}

TEST_F(X11ClipboardGuardTest, WithAnOwnerThatRespondsPastesArrive) {
    offer("CLIPBOARD");
    std::atomic<bool> over = false;
    std::thread owner([&] {
        while (!over) {
            pollfd readable{xcb_get_file_descriptor(server_.client()), POLLIN, 0};
            ::poll(&readable, 1, 1);
            const XcbReply<xcb_generic_event_t> event(xcb_poll_for_event(server_.client()));
            if (!event || (event->response_type & 0x7f) != XCB_SELECTION_REQUEST) continue;
            const auto& request = *reinterpret_cast<const xcb_selection_request_event_t*>(event.get());
            xcb_selection_notify_event_t notify{};
            notify.response_type = XCB_SELECTION_NOTIFY;
            notify.requestor = request.requestor;
            notify.selection = request.selection;
            notify.target = request.target;
            xcb_send_event(server_.client(), 0, request.requestor, 0, reinterpret_cast<const char*>(&notify));
            xcb_flush(server_.client());
        }
    });
    // One of many: the machine may be too busy for an owner to respond in time.
    bool arrived = false;
    for (int tries = 0; !arrived && tries < 20; ++tries) arrived = arrives(Qt::Key_V, Qt::ControlModifier);
    over = true;
    owner.join();
    EXPECT_TRUE(arrived);
}

}  // namespace
}  // namespace tidewatch::platform
