#include "platform/x11/x11_window_system.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <memory>
#include <vector>

#include "tests/platform/x11/private_x_server.h"

namespace tidewatch::platform {
namespace {

class X11WindowSystemTest : public testing::Test {
protected:
    /// Announces on the root window a window manager that reports frames in advance.
    void announceFrames() const {
        const auto feature = server_.atom("_NET_REQUEST_FRAME_EXTENTS");
        xcb_change_property(server_.client(), XCB_PROP_MODE_REPLACE, server_.root(),
                            server_.atom("_NET_SUPPORTED"), XCB_ATOM_ATOM, 32, 1, &feature);
        server_.sync();
    }
    void tellFrame(xcb_window_t window) const {
        const std::uint32_t extents[] = {1, 2, 20, 4};
        xcb_change_property(server_.client(), XCB_PROP_MODE_REPLACE, window,
                            server_.atom("_NET_FRAME_EXTENTS"), XCB_ATOM_CARDINAL, 32, 4, extents);
        server_.sync();
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    PrivateXServer server_;
};

TEST_F(X11WindowSystemTest, AReportedFrameIsKnown) {
    announceFrames();
    X11WindowSystem windowSystem;
    const auto window = server_.openWindow("Statistics");
    windowSystem.requestFrame(window);
    tellFrame(window);
    EXPECT_EQ(windowSystem.frameMargins(window),
              (FrameMargins{.left = 1, .right = 2, .top = 20, .bottom = 4}));
}

TEST_F(X11WindowSystemTest, AWindowManagerThatHasStoppedBlocksNobody) {
    announceFrames();
    X11WindowSystem windowSystem;
    const auto window = server_.openWindow("Statistics");
    windowSystem.requestFrame(window);
    // The fastest of several: the machine may be busy.
    qint64 quickest = 1000;
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(windowSystem.frameMargins(window), FrameMargins{});
        quickest = std::min(quickest, timer.elapsed());
    }
    EXPECT_LT(quickest, 60);
}

TEST_F(X11WindowSystemTest, ListenersOfAWindowAreReleasedWithIt) {
    X11WindowSystem windowSystem;
    std::vector<std::weak_ptr<int>> watchers;
    std::vector<Connection> connections;
    for (int i = 0; i < 20; ++i) {
        const auto window = server_.openWindow("Clock");
        auto held = std::make_shared<int>(i);
        watchers.push_back(held);
        connections.push_back(windowSystem.onOcclusionChanged(window, [held](bool) {}));
        windowSystem.setFrameVariant(window,
                                     FrameVariant::dark);  // returns once the server has seen all before it
        xcb_destroy_window(server_.client(), window);
    }
    server_.sync();
    QElapsedTimer timer;
    timer.start();
    const auto isGone = [](const std::weak_ptr<int>& watcher) { return watcher.expired(); };
    while (!std::ranges::all_of(watchers, isGone) && timer.elapsed() < 30'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    EXPECT_TRUE(std::ranges::all_of(watchers, isGone));
}

}  // namespace
}  // namespace tidewatch::platform
