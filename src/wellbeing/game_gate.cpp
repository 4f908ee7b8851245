#include "wellbeing/game_gate.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

namespace key {
constexpr std::string_view initialized = "gate.initialized";
constexpr std::string_view workSeconds = "gate.workSeconds";
constexpr std::string_view ready = "gate.ready";
constexpr std::string_view lockedUntil = "gate.lockedUntil";
}  // namespace key

constexpr int chargesBetweenPersists = 30;

// An edited preference may be out of range for Instant or for arithmetic with it.
constexpr Instant latestLock = std::chrono::sys_days(9999y / 12 / 31);

using RealSeconds = std::chrono::duration<double>;

double secondsSince1970(Instant instant) {
    return RealSeconds(instant.time_since_epoch()).count();
}

std::optional<Instant> lockEnd(double stored) {
    if (!(stored > 0)) return std::nullopt;
    const auto bounded = std::min(stored, secondsSince1970(latestLock));
    return Instant(std::chrono::round<std::chrono::milliseconds>(RealSeconds(bounded)));
}

}  // namespace

GameGate::GameGate(const platform::Clock& clock, platform::Preferences& preferences, Notifier& notifier)
    : clock_(clock), preferences_(preferences), notifier_(notifier) {
    if (preferences_.contains(key::initialized)) {
        load();
    } else {
        setUp();
    }
}

void GameGate::setUp() {
    preferences_.setBoolean(key::initialized, true);
    ready_ = true;
    preferences_.setInteger(key::workSeconds, 0);
    preferences_.setBoolean(key::ready, true);
    preferences_.setReal(key::lockedUntil, 0.0);
}

void GameGate::load() {
    workSeconds_ = std::max(Seconds(preferences_.integer(key::workSeconds)), Seconds());
    ready_ = preferences_.boolean(key::ready);
    lockedUntil_ = lockEnd(preferences_.real(key::lockedUntil));
}

void GameGate::tickWorkSecond() {
    const auto lock = endLockIfOver();
    if (!lockedUntil_ && !ready_ && !playingNow_) {
        charge();
    } else if (lock == Lock::ended) {
        changed.emit();
    }
}

GameGate::Lock GameGate::endLockIfOver() {
    if (!lockedUntil_ || clock_.now() < *lockedUntil_) return Lock::asItWas;
    lockedUntil_.reset();
    workSeconds_ = Seconds();
    persist();
    return Lock::ended;
}

void GameGate::charge() {
    // An edited preference may exceed the hour; do not count further.
    if (workSeconds_ < workToUnlock) workSeconds_ += Seconds(1);
    if (workSeconds_ < workToUnlock) {
        if (++chargedSincePersist_ >= chargesBetweenPersists) persist();
        changed.emit();
        return;
    }
    workSeconds_ = workToUnlock;
    ready_ = true;
    persist();
    changed.emit();
    notifier_.notify(
        {"🎮 Juego desbloqueado", "Llevas 1 hora de trabajo. Te ganaste una partida — tómate un respiro."});
}

void GameGate::refresh() {
    endLockIfOver();
    changed.emit();
}

bool GameGate::startPlay() {
    if (!std::holds_alternative<Ready>(state())) return false;
    ready_ = false;
    workSeconds_ = Seconds();
    lockedUntil_ = clock_.now() + cooldown;
    playingNow_ = true;
    persist();
    changed.emit();
    return true;
}

void GameGate::endPlay() {
    playingNow_ = false;
    changed.emit();
}

GameGate::State GameGate::state() const {
    if (lockedUntil_ && clock_.now() < *lockedUntil_) return Locked{*lockedUntil_};
    if (ready_) return Ready();
    return Charging{workSeconds_};
}

double GameGate::chargeProgress() const {
    return std::min(static_cast<double>(workSeconds_.count()) / static_cast<double>(workToUnlock.count()),
                    1.0);
}

Seconds GameGate::workRemaining() const {
    return Seconds(std::max<std::int64_t>(workToUnlock.count() - workSeconds_.count(), 0));
}

Seconds GameGate::lockRemaining() const {
    if (!lockedUntil_) return Seconds();
    const auto left = std::chrono::duration_cast<std::chrono::seconds>(*lockedUntil_ - clock_.now());
    return Seconds(std::max<std::int64_t>(left.count(), 0));
}

bool GameGate::canPlay() const {
    return playingNow_ || std::holds_alternative<Ready>(state());
}

void GameGate::persist() {
    chargedSincePersist_ = 0;
    preferences_.setInteger(key::workSeconds, workSeconds_.count());
    preferences_.setBoolean(key::ready, ready_);
    if (lockedUntil_) {
        preferences_.setReal(key::lockedUntil, secondsSince1970(*lockedUntil_));
    } else {
        preferences_.setInteger(key::lockedUntil, 0);
    }
}

}  // namespace tidewatch
