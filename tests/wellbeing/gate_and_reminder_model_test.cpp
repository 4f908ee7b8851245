// Random days at the machine, compared with a model, which is as simple as possible, and checked against
// rules that need no model. A failure prints the seed and every move so far.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "core/settings.h"
#include "tests/support/fake_world.h"
#include "wellbeing/break_reminder.h"
#include "wellbeing/game_gate.h"
#include "wellbeing/recording_notifier.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr int movesARun = 40;

enum class Kind { work, idle, sleep, jump, startPlay, endPlay, refresh, dismiss, flush, restart };

struct Move {
    Kind kind = Kind::work;
    std::int64_t amount = 0;  ///< seconds of work or idleness, milliseconds of sleep or of a jump
};

std::string text(const Move& move) {
    static constexpr std::array names{"work",    "idle",    "sleep",   "jump",  "startPlay",
                                      "endPlay", "refresh", "dismiss", "flush", "restart"};
    return fmt::format("{}({})", names.at(static_cast<std::size_t>(move.kind)), move.amount);
}

class RandomMoves {
public:
    explicit RandomMoves(std::uint64_t seed) : engine_(seed) {}

    std::int64_t between(std::int64_t min, std::int64_t max) {
        return std::uniform_int_distribution(min, max)(engine_);
    }
    bool oneIn(int n) { return between(1, n) == 1; }

    Move move() {
        const auto kind = static_cast<Kind>(kinds_(engine_));
        switch (kind) {
            case Kind::work:
                return {kind, oneIn(3) ? between(1, 60) : between(1, 3000)};
            case Kind::idle:
                return {kind, between(1, 600)};
            case Kind::sleep:
                return {kind, between(0, milliseconds(30h).count())};
            case Kind::jump:
                return {kind, between(-milliseconds(30h).count(), milliseconds(30h).count())};
            default:
                return {kind, 0};
        }
    }

private:
    std::mt19937_64 engine_;
    std::discrete_distribution<> kinds_{24, 1, 2, 2, 6, 6, 2, 3, 1, 1};  // in the order of Kind
};

/// The gate's expected state, and the part of it that the preferences should hold.
struct GateModel {
    struct Stored {
        std::int64_t work = 0;
        bool ready = true;
        std::optional<Instant> lock;
    };
    Stored stored;
    std::int64_t work = 0;
    bool ready = true;
    std::optional<Instant> lock;
    bool playing = false;
    int unwritten = 0;
    std::size_t messages = 0;

    void write() {
        stored = {work, ready, lock};
        unwritten = 0;
    }
    void restart() {
        work = stored.work;
        ready = stored.ready;
        lock = stored.lock;
        playing = false;
        unwritten = 0;
    }
    void endLock(Instant now) {
        if (lock && now >= *lock) {
            lock.reset();
            work = 0;
            write();
        }
    }
    void second(Instant now) {
        endLock(now);
        if (lock || ready || playing) return;
        ++work;
        if (work >= 3600) {
            work = 3600;
            ready = true;
            ++messages;
            write();
        } else if (++unwritten == 30) {
            write();
        }
    }
    void startPlay(Instant now) {
        if (!ready || (lock && now < *lock)) return;
        ready = false;
        work = 0;
        lock = now + 7200s;
        playing = true;
        write();
    }
};

/// The reminder's expected state.
struct ReminderModel {
    std::string day;
    std::int64_t sitting = 0;
    bool alert = false;
    int alerts = 0;
    int stretch = 0;
    std::optional<std::int64_t> hours;  ///< of a long day
    std::size_t messages = 0;

    void second(const std::string& today, std::int64_t totalToday) {
        if (today != day) {
            day = today;
            alerts = 0;
            sitting = 0;
        }
        ++sitting;
        const bool isLong = totalToday > 28800;
        if (sitting < (isLong ? 3600 : 7200) || alert) return;
        stretch = alerts % 7;
        ++alerts;
        hours = isLong ? std::optional(totalToday / 3600) : std::nullopt;
        alert = true;
        ++messages;
    }
};

/// What happened in a run.
struct Seen {
    std::size_t earned = 0;
    std::size_t started = 0;
    std::size_t locksEnded = 0;
    std::size_t alerts = 0;
    std::size_t days = 0;
};

class RandomRun {
public:
    explicit RandomRun(std::uint64_t seed) : random_(seed), history_(fmt::format("seed {}:", seed)) {
        storeAnyState();
        totalToday_ = random_.between(0, 40000);
        settings_.setDayStartHour(static_cast<int>(random_.between(0, 23)));
        restart();
    }

    Seen play() {
        for (int i = 0; i < movesARun && !testing::Test::HasFailure(); ++i) {
            const auto move = random_.move();
            history_ += " " + text(move);
            SCOPED_TRACE(history_);
            make(move);
            world_.mainLoop.run();
            compare();
        }
        seen_.earned = gateModel_.messages;
        seen_.alerts = reminderModel_.messages;
        return seen_;
    }

private:
    void storeAnyState() {
        if (random_.oneIn(4)) return;  // a new installation
        auto& stored = gateModel_.stored;
        stored = {random_.between(0, 4000), random_.oneIn(3), std::nullopt};
        if (random_.oneIn(2)) {
            stored.lock = world_.clock.now() + milliseconds(random_.between(-10'000'000, 10'000'000));
        }
        auto& preferences = world_.preferences;
        preferences.setBoolean("gate.initialized", true);
        preferences.setInteger("gate.workSeconds", stored.work);
        preferences.setBoolean("gate.ready", stored.ready);
        const std::chrono::duration<double> lock =
            stored.lock ? stored.lock->time_since_epoch() : Instant::duration();
        preferences.setReal("gate.lockedUntil", lock.count());
    }

    void restart() {
        gate_.emplace(world_.clock, world_.preferences, gateMessages_);
        reminder_.emplace(dayRule_, world_.mainLoop, reminderMessages_);
        gateModel_.restart();
        const auto shown = reminderModel_.messages;
        reminderModel_ = ReminderModel();
        reminderModel_.day = dayRule_.today().text();
        reminderModel_.messages = shown;
        day_ = reminderModel_.day;
    }

    void make(const Move& move) {
        auto& clock = world_.clock;
        switch (move.kind) {
            case Kind::work:
                for (auto second = 1; second <= move.amount; ++second) {
                    if (workSecond()) continue;
                    ADD_FAILURE() << "at second " << second;
                    return;
                }
                break;
            case Kind::idle:
                clock.advance(std::chrono::seconds(move.amount));
                reminder_->userWentIdle();
                reminderModel_.sitting = 0;
                EXPECT_EQ(reminder_->sittingSeconds(), Seconds(0));
                break;
            case Kind::sleep:
                clock.suspend(milliseconds(move.amount));
                break;
            case Kind::jump:
                clock.setNow(clock.now() + milliseconds(move.amount));
                break;
            case Kind::startPlay:
                startPlay();
                break;
            case Kind::endPlay:
                gate_->endPlay();
                gateModel_.playing = false;
                break;
            case Kind::refresh:
                gate_->refresh();
                gateModel_.endLock(clock.now());
                break;
            case Kind::dismiss:
                reminder_->dismissAlert();
                reminderModel_.alert = false;
                reminderModel_.sitting = 0;
                break;
            case Kind::flush:
                gate_->flush();
                gateModel_.write();
                break;
            case Kind::restart:
                restart();
                break;
        }
    }

    /// False if anything is wrong. Plain comparisons, since there are hundreds of thousands.
    bool workSecond() {
        world_.clock.advance(1s);
        const auto today = dayRule_.today().text();
        if (today != day_) {
            totalToday_ = random_.between(0, 40000);
            ++seen_.days;
        }
        day_ = today;
        ++totalToday_;

        const bool wasReady = gate_->isReady();
        const bool hadLock = gate_->lockedUntil().has_value();
        const auto shownByGate = gateMessages_.shown.size();
        gate_->tickWorkSecond();
        gateModel_.second(world_.clock.now());
        if (hadLock && !gate_->lockedUntil()) ++seen_.locksEnded;
        const bool earned = gate_->isReady() && !wasReady;
        const bool toldRightly = gateMessages_.shown.size() == shownByGate + (earned ? 1 : 0);

        const bool stood = reminder_->alertActive();
        reminder_->tickActiveSecond(Seconds(totalToday_));
        reminderModel_.second(today, totalToday_);
        const bool alertKept = reminder_->alertActive() || !stood;
        return toldRightly && alertKept && reminder_->sittingSeconds() == Seconds(reminderModel_.sitting) &&
               reminder_->alertActive() == reminderModel_.alert &&
               gate_->workSeconds() == Seconds(gateModel_.work);
    }

    void startPlay() {
        const bool couldStart = std::holds_alternative<GameGate::Ready>(gate_->state());
        const auto before = gate_->state();
        EXPECT_EQ(gate_->startPlay(), couldStart);
        gateModel_.startPlay(world_.clock.now());
        if (couldStart) {
            ++seen_.started;
            EXPECT_TRUE(std::holds_alternative<GameGate::Locked>(gate_->state()));
            EXPECT_EQ(gate_->lockRemaining(), Seconds(7200));
            EXPECT_TRUE(gate_->canPlay());
        } else {
            EXPECT_EQ(gate_->state(), before);
        }
    }

    void compare() {
        compareGate();
        compareReminder();
    }

    void compareGate() {
        const auto now = world_.clock.now();
        const auto& model = gateModel_;
        EXPECT_EQ(gate_->workSeconds(), Seconds(model.work));
        EXPECT_EQ(gate_->isReady(), model.ready);
        EXPECT_EQ(gate_->lockedUntil(), model.lock);
        EXPECT_EQ(gate_->playingNow(), model.playing);
        EXPECT_EQ(gateMessages_.shown.size(), model.messages);
        EXPECT_EQ(world_.preferences.integer("gate.workSeconds"), model.stored.work);
        EXPECT_EQ(world_.preferences.boolean("gate.ready"), model.stored.ready);
        EXPECT_EQ(world_.preferences.real("gate.lockedUntil") > 0, model.stored.lock.has_value());

        const auto state = gate_->state();
        if (model.lock && now < *model.lock) {
            EXPECT_EQ(state, GameGate::State(GameGate::Locked{*model.lock}));
            EXPECT_GE(gate_->lockRemaining(), Seconds(0));
        } else if (model.ready) {
            EXPECT_EQ(state, GameGate::State(GameGate::Ready()));
        } else {
            EXPECT_EQ(state, GameGate::State(GameGate::Charging{Seconds(model.work)}));
            EXPECT_EQ(gate_->lockRemaining(), Seconds(0));
        }
        EXPECT_EQ(gate_->canPlay(), model.playing || std::holds_alternative<GameGate::Ready>(state));
        EXPECT_GE(gate_->chargeProgress(), 0.0);
        EXPECT_LE(gate_->chargeProgress(), 1.0);
        EXPECT_GE(gate_->workRemaining(), Seconds(0));
        EXPECT_LE(gate_->workRemaining(), GameGate::workToUnlock);
    }

    void compareReminder() {
        const auto& model = reminderModel_;
        EXPECT_EQ(reminder_->sittingSeconds(), Seconds(model.sitting));
        EXPECT_EQ(reminder_->alertActive(), model.alert);
        EXPECT_EQ(reminder_->alertsToday(), model.alerts);
        EXPECT_EQ(static_cast<int>(reminder_->stretch()), model.stretch);
        EXPECT_EQ(reminder_->lastResetDay().text(), model.day);
        EXPECT_EQ(reminder_->reason(),
                  model.hours ? BreakReason(LongDay{*model.hours}) : BreakReason(TwoHours()));
        EXPECT_EQ(reminderMessages_.shown.size(), model.messages);
    }

    RandomMoves random_;
    std::string history_;
    test::FakeWorld world_;
    Settings settings_{world_.preferences};
    DayRule dayRule_{world_.clock, settings_};
    test::RecordingNotifier gateMessages_;
    test::RecordingNotifier reminderMessages_;
    std::optional<GameGate> gate_;
    std::optional<BreakReminder> reminder_;
    GateModel gateModel_;
    ReminderModel reminderModel_;
    std::int64_t totalToday_ = 0;
    std::string day_;
    Seen seen_;
};

/// A single run with TIDEWATCH_SEED; more runs with TIDEWATCH_LONG.
std::vector<std::uint64_t> seeds() {
    if (const char* seed = std::getenv("TIDEWATCH_SEED")) return {std::strtoull(seed, nullptr, 10)};
    std::vector<std::uint64_t> result;
    for (std::uint64_t seed = 1; seed <= (std::getenv("TIDEWATCH_LONG") ? 1000u : 10u); ++seed) {
        result.push_back(seed);
    }
    return result;
}

TEST(GateAndReminder, StayWithinTheirTablesWhateverComes) {
    const auto all = seeds();
    Seen sum;
    for (const auto seed : all) {
        const auto seen = RandomRun(seed).play();
        if (HasFailure()) return;
        sum.earned += seen.earned;
        sum.started += seen.started;
        sum.locksEnded += seen.locksEnded;
        sum.alerts += seen.alerts;
        sum.days += seen.days;
    }
    if (all.size() == 1) return;
    EXPECT_GE(sum.earned, all.size()) << "the runs no longer go where they should";
    EXPECT_GE(sum.started, all.size());
    EXPECT_GE(sum.locksEnded, all.size() / 2);
    EXPECT_GE(sum.alerts, all.size());
    EXPECT_GE(sum.days, all.size());
    RecordProperty("earned", static_cast<int>(sum.earned));
    RecordProperty("alerts", static_cast<int>(sum.alerts));
}

}  // namespace
}  // namespace tidewatch
