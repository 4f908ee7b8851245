#include "wellbeing/game_gate.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

#include "tests/support/fake_world.h"
#include "wellbeing/recording_notifier.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using Charging = GameGate::Charging;
using Locked = GameGate::Locked;
using Ready = GameGate::Ready;
using State = GameGate::State;

class GameGateTest : public testing::Test {
protected:
    /// The next start, on the same preferences.
    GameGate& start() { return gate_.emplace(world_.clock, world_.preferences, notifier_); }

    /// A start on preferences in which only the charge is set.
    GameGate& startCharged(std::int64_t seconds) {
        world_.preferences.setBoolean("gate.initialized", true);
        world_.preferences.setInteger("gate.workSeconds", seconds);
        return start();
    }

    GameGate& startLocked() {
        start();
        EXPECT_TRUE(gate_->startPlay());
        gate_->endPlay();
        return *gate_;
    }

    void work(int seconds) {
        for (int i = 0; i < seconds; ++i) gate_->tickWorkSecond();
    }

    test::FakeWorld world_;
    test::RecordingNotifier notifier_;
    std::optional<GameGate> gate_;
    const Instant begin_ = world_.clock.now();
};

TEST_F(GameGateTest, TheFirstGameOfANewInstallationIsFree) {
    const auto& gate = start();
    EXPECT_EQ(gate.state(), State(Ready()));
    EXPECT_TRUE(gate.canPlay());
    EXPECT_TRUE(world_.preferences.boolean("gate.initialized"));
    EXPECT_TRUE(world_.preferences.contains("gate.workSeconds"));
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 0);
    EXPECT_TRUE(world_.preferences.boolean("gate.ready"));
    EXPECT_TRUE(world_.preferences.contains("gate.lockedUntil"));
    EXPECT_EQ(world_.preferences.real("gate.lockedUntil"), 0.0);
    EXPECT_TRUE(notifier_.shown.empty());
}

TEST_F(GameGateTest, OnlyThePresenceOfTheKeyMatters) {
    world_.preferences.setBoolean("gate.initialized", false);
    EXPECT_EQ(start().state(), State(Charging{Seconds(0)}));
}

TEST_F(GameGateTest, LoadsWhatIsStored) {
    world_.preferences.setReal("gate.lockedUntil", 1768471200.25);
    const auto& gate = startCharged(1234);
    EXPECT_EQ(gate.workSeconds(), Seconds(1234));
    EXPECT_FALSE(gate.isReady());
    EXPECT_EQ(gate.lockedUntil(), Instant(1768471200250ms));
    EXPECT_FALSE(gate.playingNow());
}

TEST_F(GameGateTest, AnHourOfWorkChargesAGameAndTellsTheUser) {
    startCharged(0);
    work(3599);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(3599)}));
    EXPECT_TRUE(notifier_.shown.empty());
    work(1);
    EXPECT_EQ(gate_->state(), State(Ready()));
    EXPECT_EQ(gate_->workSeconds(), Seconds(3600));
    ASSERT_EQ(notifier_.shown.size(), 1u);
    EXPECT_EQ(notifier_.shown[0],
              (platform::UserNotification{
                  "🎮 Juego desbloqueado",
                  "Llevas 1 hora de trabajo. Te ganaste una partida — tómate un respiro."}));
    EXPECT_TRUE(world_.preferences.boolean("gate.ready"));
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 3600);
}

TEST_F(GameGateTest, AWaitingGameDoesNotAccumulateASecondOne) {
    startCharged(0);
    work(2 * 3600 + 5);
    EXPECT_EQ(gate_->workSeconds(), Seconds(3600));
    EXPECT_EQ(notifier_.shown.size(), 1u);
    ASSERT_TRUE(gate_->startPlay());
    EXPECT_EQ(gate_->workSeconds(), Seconds(0));
}

TEST_F(GameGateTest, StartingAGameSpendsItAndLocksForTwoHours) {
    start();
    EXPECT_TRUE(gate_->startPlay());
    EXPECT_EQ(gate_->state(), State(Locked{begin_ + 2h}));
    EXPECT_EQ(gate_->lockRemaining(), Seconds(7200));
    EXPECT_TRUE(gate_->playingNow());
    EXPECT_FALSE(gate_->isReady());
    EXPECT_FALSE(world_.preferences.boolean("gate.ready"));
    EXPECT_EQ(world_.preferences.real("gate.lockedUntil"),
              std::chrono::duration<double>(begin_.time_since_epoch()).count() + 7200);
}

TEST_F(GameGateTest, TheLockRunsFromTheStartOfTheGameHoweverLongItTakes) {
    start();
    ASSERT_TRUE(gate_->startPlay());
    world_.clock.advance(3h);
    work(100);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(0)})) << "time at play charges nothing";
    gate_->endPlay();
    work(1);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(1)}));
}

TEST_F(GameGateTest, TheWorkOfTheLockCountsForNothing) {
    startLocked();
    for (int i = 0; i < 7199; ++i) {
        world_.clock.advance(1s);
        gate_->tickWorkSecond();
    }
    EXPECT_EQ(gate_->lockRemaining(), Seconds(1));
    world_.clock.advance(1s);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(0)})) << "a lock that is over reads as gone";
    work(1);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(1)}));
    EXPECT_EQ(gate_->lockedUntil(), std::nullopt);
    work(3599);
    EXPECT_EQ(gate_->state(), State(Ready()));
}

TEST_F(GameGateTest, TheClockSetBackDuringALockLengthensIt) {
    startLocked();
    world_.clock.setNow(begin_ - 1h);
    EXPECT_EQ(gate_->lockRemaining(), Seconds(3 * 3600));
    gate_->tickWorkSecond();
    EXPECT_EQ(gate_->state(), State(Locked{begin_ + 2h}));
}

TEST_F(GameGateTest, TheClockSetForwardPastTheLockEndsItAtTheNextTick) {
    startLocked();
    world_.clock.setNow(begin_ + 2h);
    gate_->tickWorkSecond();
    EXPECT_EQ(gate_->lockedUntil(), std::nullopt);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(1)}));
    EXPECT_EQ(world_.preferences.real("gate.lockedUntil"), 0);
    world_.clock.setNow(begin_);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(1)})) << "an ended lock does not come back";
}

TEST_F(GameGateTest, AStoredLockOfZeroOrBelowIsNone) {
    for (const double stored : {0.0, -0.0, -1.0, -1e300}) {
        world_.preferences.setReal("gate.lockedUntil", stored);
        EXPECT_EQ(startCharged(7).lockedUntil(), std::nullopt) << stored;
        EXPECT_EQ(gate_->lockRemaining(), Seconds(0));
    }
    world_.preferences.setInteger("gate.lockedUntil", 0);
    EXPECT_EQ(startCharged(7).lockedUntil(), std::nullopt);
    world_.preferences.setText("gate.lockedUntil", "soon");
    EXPECT_EQ(startCharged(7).lockedUntil(), std::nullopt);
    world_.preferences.setReal("gate.lockedUntil", std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(startCharged(7).lockedUntil(), std::nullopt);
}

TEST_F(GameGateTest, AnAbsurdStoredLockIsALongOne) {
    for (const double stored : {1e300, std::numeric_limits<double>::infinity()}) {
        world_.preferences.setReal("gate.lockedUntil", stored);
        startCharged(0);
        ASSERT_TRUE(std::holds_alternative<Locked>(gate_->state()));
        world_.clock.setNow(Instant(-std::chrono::hours(24 * 365 * 100)));
        EXPECT_GT(gate_->lockRemaining(), Seconds(200'000'000'000));
        work(1);
        EXPECT_EQ(gate_->workSeconds(), Seconds(0));
    }
}

TEST_F(GameGateTest, AnExpiredLockIsKeptUntilATickOrARefresh) {
    startLocked();
    world_.clock.advance(5h);
    start();
    EXPECT_EQ(gate_->lockedUntil(), begin_ + 2h);
    EXPECT_EQ(gate_->lockRemaining(), Seconds(0));
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(0)}));
    gate_->refresh();
    EXPECT_EQ(gate_->lockedUntil(), std::nullopt);
    EXPECT_EQ(world_.preferences.real("gate.lockedUntil"), 0);
}

TEST_F(GameGateTest, TheEndOfALockVoidsTheChargeThatWasStoredWithIt) {
    world_.preferences.setReal("gate.lockedUntil", 1);
    startCharged(2000);
    gate_->refresh();
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(0)}));
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 0);
}

TEST_F(GameGateTest, StartingWhileLockedOrChargingChangesNothing) {
    startCharged(1800);
    EXPECT_FALSE(gate_->startPlay());
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(1800)}));
    EXPECT_FALSE(gate_->playingNow());
    EXPECT_EQ(world_.preferences.contains("gate.lockedUntil"), false) << "nothing was stored";

    world_.preferences.setBoolean("gate.ready", true);
    startLocked();
    world_.clock.advance(10s);
    EXPECT_FALSE(gate_->startPlay());
    EXPECT_EQ(gate_->state(), State(Locked{begin_ + 2h}));
    EXPECT_FALSE(gate_->playingNow());
}

TEST_F(GameGateTest, ARunningGameStaysPlayableButIsNotStartedTwice) {
    start();
    EXPECT_TRUE(gate_->startPlay());
    EXPECT_FALSE(gate_->startPlay());
    EXPECT_TRUE(gate_->canPlay());
    gate_->endPlay();
    EXPECT_FALSE(gate_->canPlay());
}

TEST_F(GameGateTest, AQuitDuringAGameKeepsTheLockAndForgetsThePlaying) {
    start();
    ASSERT_TRUE(gate_->startPlay());
    start();
    EXPECT_FALSE(gate_->playingNow());
    EXPECT_EQ(gate_->state(), State(Locked{begin_ + 2h}));
}

TEST_F(GameGateTest, AStoredChargeAboveTheHourLeavesNothingToWork) {
    startCharged(4000);
    EXPECT_EQ(gate_->workRemaining(), Seconds(0));
    EXPECT_EQ(gate_->chargeProgress(), 1.0);
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(4000)}));
    work(1);
    EXPECT_EQ(gate_->state(), State(Ready()));
    EXPECT_EQ(gate_->workSeconds(), Seconds(3600));
}

TEST_F(GameGateTest, AnAbsurdStoredChargeIsHarmless) {
    startCharged(std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(gate_->workRemaining(), Seconds(0));
    work(1);
    EXPECT_EQ(gate_->state(), State(Ready()));

    world_.preferences.setBoolean("gate.ready", false);
    startCharged(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(gate_->state(), State(Charging{Seconds(0)}));
    EXPECT_EQ(gate_->workRemaining(), Seconds(3600));
    EXPECT_EQ(gate_->chargeProgress(), 0.0);
}

TEST_F(GameGateTest, ProgressAndRemainingWork) {
    startCharged(900);
    EXPECT_EQ(gate_->chargeProgress(), 0.25);
    EXPECT_EQ(gate_->workRemaining(), Seconds(2700));
}

TEST_F(GameGateTest, TheRemainingLockIsTruncatedToWholeSeconds) {
    startLocked();
    world_.clock.advance(1ms);
    EXPECT_EQ(gate_->lockRemaining(), Seconds(7199));
    world_.clock.setNow(begin_ + 2h - 1ms);
    EXPECT_EQ(gate_->lockRemaining(), Seconds(0));
    EXPECT_EQ(gate_->state(), State(Locked{begin_ + 2h}));
}

TEST_F(GameGateTest, TheChargeIsStoredEveryThirtySecondsAndAtAFlush) {
    startCharged(0);
    work(29);
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 0);
    work(1);
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 30);
    work(29);
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 30);
    gate_->flush();
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 59);
    work(29);
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 59) << "counted from the last writing";
    work(1);
    EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), 89);
}

TEST_F(GameGateTest, ALockSurvivesARestartToTheMillisecond) {
    world_.clock.advance(123ms);
    startLocked();
    const auto until = gate_->lockedUntil();
    start();
    EXPECT_EQ(gate_->lockedUntil(), until);
}

TEST_F(GameGateTest, ChangesAreAnnouncedAndARefreshAlwaysIs) {
    startCharged(3599);
    int announced = 0;
    const auto connection = gate_->changed.connect([&] { ++announced; });
    work(1);
    EXPECT_EQ(announced, 1);
    work(1);
    EXPECT_EQ(announced, 1) << "a waiting game changes nothing";
    EXPECT_TRUE(gate_->startPlay());
    EXPECT_EQ(announced, 2);
    EXPECT_FALSE(gate_->startPlay());
    EXPECT_EQ(announced, 2);
    gate_->refresh();
    EXPECT_EQ(announced, 3);
    world_.clock.advance(2h);
    work(1);
    EXPECT_EQ(announced, 4) << "the lock ended while the game is being played";
    gate_->endPlay();
    EXPECT_EQ(announced, 5);
}

}  // namespace
}  // namespace tidewatch
