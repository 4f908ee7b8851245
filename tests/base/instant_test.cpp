#include "base/instant.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

TEST(CivilTime, AnOffsetMovesTheDate) {
    const Instant instant = sys_days(2026y / 1 / 15) + 23h + 30min;
    EXPECT_EQ(civilTime(instant, 1h).date, 2026y / 1 / 16);
    EXPECT_EQ(civilTime(instant, 1h).hour, 0);
    EXPECT_EQ(civilTime(instant, 1h).minute, 30);
    EXPECT_EQ(civilTime(instant, -6h).date, 2026y / 1 / 15);
    EXPECT_EQ(civilTime(instant, -6h).hour, 17);
}

TEST(CivilTime, MillisecondsBeforeTheEpochBelongToTheEarlierSecond) {
    const auto civil = civilTime(Instant(-1ms), 0s);
    EXPECT_EQ(civil.date, 1969y / 12 / 31);
    EXPECT_EQ(civil.hour, 23);
    EXPECT_EQ(civil.second, 59);
}

}  // namespace
}  // namespace tidewatch
