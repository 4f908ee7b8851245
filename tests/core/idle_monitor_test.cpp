#include "core/idle_monitor.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/fake/fake_input_activity.h"

namespace tidewatch {
namespace {

TEST(IdleMonitor, ForwardsThePlatformsValue) {
    platform::FakeInputActivity input;
    const IdleMonitor monitor(input);
    input.set(12.5);
    EXPECT_EQ(monitor.secondsSinceLastInput(), 12.5);
    EXPECT_TRUE(monitor.hasSource());
}

TEST(IdleMonitor, WithoutASourceTheUserIsIdleForEver) {
    platform::FakeInputActivity input;
    const IdleMonitor monitor(input);
    input.set(std::nullopt);
    EXPECT_TRUE(std::isinf(monitor.secondsSinceLastInput()));
    EXPECT_FALSE(monitor.hasSource());
}

}  // namespace
}  // namespace tidewatch
