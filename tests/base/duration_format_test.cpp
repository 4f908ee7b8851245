#include "base/duration_format.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(Hms, PadsEveryPartToTwoDigits) {
    EXPECT_EQ(hms(Seconds(0)), "00:00:00");
    EXPECT_EQ(hms(Seconds(3661)), "01:01:01");
}

TEST(Hms, HoursAreNotWrapped) {
    EXPECT_EQ(hms(Seconds(24 * 3600)), "24:00:00");
    EXPECT_EQ(hms(Seconds(100 * 3600)), "100:00:00");
}

TEST(FormatShort, ChangesItsFormAtAMinuteAndAtAnHour) {
    EXPECT_EQ(formatShort(Seconds(0)), "0s");
    EXPECT_EQ(formatShort(Seconds(59)), "59s");
    EXPECT_EQ(formatShort(Seconds(60)), "1m 0s");
    EXPECT_EQ(formatShort(Seconds(3599)), "59m 59s");
    EXPECT_EQ(formatShort(Seconds(3600)), "1h 0m");
    EXPECT_EQ(formatShort(Seconds(5400)), "1h 30m");
}

}  // namespace
}  // namespace tidewatch
