#include "base/seconds.h"

#include <gtest/gtest.h>

#include <limits>

namespace tidewatch {
namespace {

TEST(Seconds, Add) {
    EXPECT_EQ(Seconds(40) + Seconds(2), Seconds(42));
}

TEST(Seconds, Subtract) {
    EXPECT_EQ(Seconds(40) - Seconds(42), Seconds(-2));
}

TEST(SecondsDeathTest, AnOverflowEndsTheProcessWithAMessage) {
    const Seconds max(std::numeric_limits<std::int64_t>::max());
    EXPECT_DEATH((void)(max + Seconds(1)), "a counter of seconds overflowed");
    EXPECT_DEATH((void)(Seconds(-2) - max), "a counter of seconds overflowed");
}

}  // namespace
}  // namespace tidewatch
