#include "platform/fake/fake_clock.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_time_zone.h"

namespace tidewatch::platform {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

constexpr Instant start = sys_days(2026y / 1 / 15) + 9h;

TEST(FakeClock, StandsStillUntilTold) {
    FakeClock clock(start);
    EXPECT_EQ(clock.now(), start);
    const auto before = clock.monotonic();
    clock.advance(1500ms);
    EXPECT_EQ(clock.now(), start + 1500ms);
    EXPECT_EQ(clock.monotonic() - before, 1500ms);
}

TEST(FakeClock, ASleepPassesOnTheWallOnly) {
    FakeClock clock(start);
    const auto before = clock.monotonic();
    clock.suspend(8h);
    EXPECT_EQ(clock.now(), start + 8h);
    EXPECT_EQ(clock.monotonic(), before);
}

TEST(FakeClock, TheWallClockCanBeSetBack) {
    FakeClock clock(start);
    const auto before = clock.monotonic();
    clock.setNow(start - 24h);
    EXPECT_EQ(clock.now(), start - 24h);
    EXPECT_EQ(clock.monotonic(), before);
}

TEST(FakeClock, AZoneHandedOutDoesNotFollowALaterChange) {
    FakeClock clock(start);
    const auto before = clock.timeZone();
    clock.setZone(fixedZone(-6h));
    EXPECT_EQ(before->utcOffset(start), 0s);
    EXPECT_EQ(clock.timeZone()->utcOffset(start), -6h);
}

struct Night {
    const char* name;
    std::shared_ptr<const TimeZone> zone;
    Instant change;
    seconds before;
    seconds after;
};

class RealNights : public testing::TestWithParam<Night> {};

TEST_P(RealNights, TheOffsetChangesAtTheRealMoment) {
    const auto& night = GetParam();
    EXPECT_EQ(night.zone->utcOffset(night.change - 1ms), night.before);
    EXPECT_EQ(night.zone->utcOffset(night.change), night.after);
}

INSTANTIATE_TEST_SUITE_P(
    FakeTimeZone, RealNights,
    testing::Values(Night{"MadridSpring2026", madridZone(), sys_days(2026y / 3 / 29) + 1h, 1h, 2h},
                    Night{"MadridAutumn2026", madridZone(), sys_days(2026y / 10 / 25) + 1h, 2h, 1h},
                    Night{"MexicoSpring2022", mexicoCityZone(), sys_days(2022y / 4 / 3) + 8h, -6h, -5h},
                    Night{"MexicoAutumn2022", mexicoCityZone(), sys_days(2022y / 10 / 30) + 7h, -5h, -6h},
                    Night{"MexicoSpring2023HasNone", mexicoCityZone(), sys_days(2023y / 4 / 2) + 8h, -6h,
                          -6h}),
    [](const auto& instance) { return instance.param.name; });

}  // namespace
}  // namespace tidewatch::platform
