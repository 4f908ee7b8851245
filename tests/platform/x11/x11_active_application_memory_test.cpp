#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/platform/x11/active_application_fixture.h"

namespace tidewatch::platform {
namespace {

TEST_F(X11ActiveApplicationTest, AMillionChangesWhileNobodyAsksCostNoMemory) {
    const auto former = server_.openWindow("Former");
    const auto present = server_.openWindow("Present");
    const auto next = server_.openWindow("Next");
    focus(former);
    ASSERT_TRUE(active_.current());
    focus(present);
    ASSERT_TRUE(active_.current());
    const auto change = [this](xcb_window_t window, std::uint32_t times) {
        for (std::uint32_t i = 0; i < times; ++i) server_.setNumber(window, title_, i);
        server_.sync();
        QCoreApplication::processEvents();
    };
    change(present, 1000);
    const auto before = residentMemory(::getpid());
    const auto serverBefore = server_.memory();
    for (int round = 0; round < 500; ++round) {
        change(former, 1000);
        change(present, 500);
        change(server_.root(), 500);
        // The user is away, but windows open and close.
        if (round % 100 == 0) focus(round % 200 == 0 ? next : present);
    }
    constexpr std::int64_t flat = 6 * 1024 * 1024;
    EXPECT_LT(residentMemory(::getpid()) - before, flat);
    EXPECT_LT(server_.memory() - serverBefore, flat);
    EXPECT_TRUE(active_.current());
}

}  // namespace
}  // namespace tidewatch::platform
