#include "platform/qt/qt_clock.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tidewatch::platform {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

/// Sets the process's zone for one test.
class Zone final {
public:
    explicit Zone(const char* name) { setenv("TZ", name, 1); }
    ~Zone() { setenv("TZ", "UTC", 1); }
};

TEST(QtClock, KnowsBothDaylightSavingNightsOfMadrid) {
    const Zone zone("Europe/Madrid");
    const auto madrid = QtClock().timeZone();
    EXPECT_EQ(madrid->utcOffset(sys_days(2026y / 3 / 29) + 59min), 1h);
    EXPECT_EQ(madrid->utcOffset(sys_days(2026y / 3 / 29) + 1h), 2h);
    EXPECT_EQ(madrid->utcOffset(sys_days(2026y / 10 / 25) + 59min), 2h);
    EXPECT_EQ(madrid->utcOffset(sys_days(2026y / 10 / 25) + 1h), 1h);
}

TEST(QtClock, KnowsThatMexicoCityGaveUpDaylightSaving) {
    const Zone zone("America/Mexico_City");
    const auto mexico = QtClock().timeZone();
    EXPECT_EQ(mexico->utcOffset(sys_days(2022y / 4 / 3) + 7h + 59min), -6h);
    EXPECT_EQ(mexico->utcOffset(sys_days(2022y / 4 / 3) + 8h), -5h);
    EXPECT_EQ(mexico->utcOffset(sys_days(2022y / 10 / 30) + 7h), -6h);
    EXPECT_EQ(mexico->utcOffset(sys_days(2026y / 7 / 1)), -6h);
}

TEST(QtClock, AZoneThatWasTakenDoesNotFollowTheMachine) {
    const Zone before("Europe/Madrid");
    const QtClock clock;
    const auto taken = clock.timeZone();
    const Zone after("America/Mexico_City");
    const Instant winter = sys_days(2026y / 1 / 15);
    EXPECT_EQ(taken->utcOffset(winter), 1h);
    EXPECT_EQ(clock.timeZone()->utcOffset(winter), -6h);
}

TEST(QtClock, AnUnknownZoneIsUtc) {
    const Zone zone("Nowhere/Land");
    EXPECT_EQ(QtClock().timeZone()->utcOffset(sys_days(2026y / 1 / 15)), 0s);
}

TEST(QtClock, MonotonicTimeDoesNotGoBack) {
    const QtClock clock;
    const auto earlier = clock.monotonic();
    EXPECT_GE(clock.monotonic(), earlier);
}

}  // namespace
}  // namespace tidewatch::platform
