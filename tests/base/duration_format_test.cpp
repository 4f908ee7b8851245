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

TEST(Hm, DropsTheSecondsAndPadsNothing) {
    EXPECT_EQ(hm(Seconds(0)), "0m");
    EXPECT_EQ(hm(Seconds(59)), "0m");
    EXPECT_EQ(hm(Seconds(45 * 60)), "45m");
    EXPECT_EQ(hm(Seconds(3599)), "59m");
    EXPECT_EQ(hm(Seconds(3600)), "1h 0m");
    EXPECT_EQ(hm(Seconds(5400)), "1h 30m");
    EXPECT_EQ(hm(Seconds(7500)), "2h 5m");
}

TEST(FormatHM, ChangesItsFormAtAMinuteAndAtAnHour) {
    EXPECT_EQ(formatHM(Seconds(0)), "0s");
    EXPECT_EQ(formatHM(Seconds(59)), "59s");
    EXPECT_EQ(formatHM(Seconds(60)), "1m");
    EXPECT_EQ(formatHM(Seconds(3599)), "59m");
    EXPECT_EQ(formatHM(Seconds(3600)), "1h 0m");
    EXPECT_EQ(formatHM(Seconds(7500)), "2h 5m");
}

TEST(FormatPadded, ChangesItsFormAtAnHour) {
    EXPECT_EQ(formatPadded(Seconds(0)), "0m 00s");
    EXPECT_EQ(formatPadded(Seconds(59)), "0m 59s");
    EXPECT_EQ(formatPadded(Seconds(3599)), "59m 59s");
    EXPECT_EQ(formatPadded(Seconds(3600)), "1h 00m");
    EXPECT_EQ(formatPadded(Seconds(7384)), "2h 03m");
}

TEST(Compact, ChangesItsFormAtAMinuteAndAtAnHour) {
    EXPECT_EQ(compact(Seconds(0)), "0s");
    EXPECT_EQ(compact(Seconds(59)), "59s");
    EXPECT_EQ(compact(Seconds(60)), "1m 00s");
    EXPECT_EQ(compact(Seconds(3599)), "59m 59s");
    EXPECT_EQ(compact(Seconds(3600)), "1h 00m");
    EXPECT_EQ(compact(Seconds(7200)), "2h 00m");
}

}  // namespace
}  // namespace tidewatch
