#include "platform/x11/x11_active_application.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include "tests/platform/x11/active_application_fixture.h"

namespace tidewatch::platform {
namespace {

TEST_F(X11ActiveApplicationTest, TheAnswerFollowsTheFocusBackAndForth) {
    EXPECT_EQ(active_.current(), std::nullopt);
    // The process behind a window is asked first; windows of this one would be the program's own.
    const auto first = server_.openWindow("First");
    focus(first);
    EXPECT_EQ(active_.current(), AppId("own"));
    focus(XCB_WINDOW_NONE);
    EXPECT_EQ(active_.current(), std::nullopt);
    focus(first);
    EXPECT_EQ(active_.current(), AppId("own"));
}

TEST_F(X11ActiveApplicationTest, OnlyTheWindowInFrontIsWatched) {
    const auto former = server_.openWindow("Former");
    const auto present = server_.openWindow("Present");
    const auto watchers = [this](xcb_window_t window) {
        const auto cookie = xcb_get_window_attributes(server_.client(), window);
        const XcbReply<xcb_get_window_attributes_reply_t> reply(
            xcb_get_window_attributes_reply(server_.client(), cookie, nullptr));
        return reply->all_event_masks;
    };
    focus(former);
    ASSERT_TRUE(active_.current());
    EXPECT_NE(watchers(former), 0u);
    focus(present);
    ASSERT_TRUE(active_.current());
    EXPECT_NE(watchers(present), 0u);
    EXPECT_EQ(watchers(former), 0u);
    // Without being requested.
    focus(XCB_WINDOW_NONE);
    QElapsedTimer timer;
    timer.start();
    while (watchers(present) != 0 && timer.elapsed() < 30'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    EXPECT_EQ(watchers(present), 0u);
}

/// Some window managers announce such a window as active when it is shown or hovered over.
TEST_F(X11ActiveApplicationTest, AWindowOfThisProgramThatTakesNoFocusLeavesTheFormerAnswer) {
    const auto clock = server_.openWindow("Clock");
    server_.refuseFocus(clock);
    focus(XCB_WINDOW_NONE);
    EXPECT_EQ(active_.current(), std::nullopt);
    focus(clock);
    EXPECT_EQ(active_.current(), std::nullopt);
    const auto statistics = server_.openWindow("Statistics");
    focus(statistics);
    EXPECT_EQ(active_.current(), AppId("own"));
    focus(clock);
    EXPECT_EQ(active_.current(), AppId("own"));
    xcb_destroy_window(server_.client(), statistics);
    server_.sync();
    EXPECT_EQ(active_.current(), std::nullopt);
}

TEST_F(X11ActiveApplicationTest, WithoutAnAnnouncementTheInputFocusIsAsked) {
    const auto window = server_.openWindow("Window");
    xcb_map_window(server_.client(), window);
    const auto give = [this](xcb_window_t focused) {
        xcb_set_input_focus(server_.client(), XCB_INPUT_FOCUS_NONE, focused, XCB_CURRENT_TIME);
        server_.sync();
    };
    give(window);
    EXPECT_EQ(active_.current(), AppId("own"));
    give(XCB_INPUT_FOCUS_NONE);
    EXPECT_EQ(active_.current(), std::nullopt);
    give(window);
    EXPECT_EQ(active_.current(), AppId("own"));
    // As it is after a focused window is gone: the keys go to the window below the pointer.
    const auto pointAt = [this](std::int16_t x, std::int16_t y) {
        xcb_warp_pointer(server_.client(), XCB_WINDOW_NONE, server_.root(), 0, 0, 0, 0, x, y);
        server_.sync();
    };
    for (const xcb_window_t focused : {server_.root(), xcb_window_t{XCB_INPUT_FOCUS_POINTER_ROOT}}) {
        give(focused);
        pointAt(300, 300);
        EXPECT_EQ(active_.current(), std::nullopt);
        pointAt(50, 50);
        EXPECT_EQ(active_.current(), AppId("own"));
    }
    // A window manager has come.
    focus(XCB_WINDOW_NONE);
    EXPECT_EQ(active_.current(), std::nullopt);
}

}  // namespace
}  // namespace tidewatch::platform
