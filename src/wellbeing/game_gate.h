#pragma once

#include <chrono>
#include <optional>
#include <variant>

#include "base/instant.h"
#include "base/seconds.h"
#include "base/signal.h"
#include "core/tick_listeners.h"
#include "platform/api/clock.h"
#include "platform/api/preferences.h"
#include "wellbeing/notifier.h"

namespace tidewatch {

/// Games have to be earned: an hour of work charges one game, and starting it locks the games for two hours,
/// in which work charges nothing. Persisted in the preferences; the charge every 30 seconds, so that a crash
/// loses 29 at most. The first game of a new installation is free. Main thread only.
class GameGate final : public GameGateListener {
public:
    static constexpr Seconds workToUnlock{3600};
    static constexpr std::chrono::seconds cooldown{7200};

    struct Charging {
        Seconds work;
        bool operator==(const Charging&) const = default;
    };
    struct Locked {
        Instant until;
        bool operator==(const Locked&) const = default;
    };
    struct Ready {
        bool operator==(const Ready&) const = default;
    };
    using State = std::variant<Charging, Locked, Ready>;

    /// Loads the stored state. A lock that has expired meanwhile is kept until the next tick or refresh. All
    /// three must outlive it.
    GameGate(const platform::Clock& clock, platform::Preferences& preferences, Notifier& notifier);
    GameGate(const GameGate&) = delete;
    GameGate& operator=(const GameGate&) = delete;

    /// Counts one second of work: ends an expired lock, and charges unless the gate is locked, a game is
    /// available or one is being played. The last second of the hour notifies the user.
    void tickWorkSecond() override;

    /// Persists the state.
    void flush() override { persist(); }

    /// Ends an expired lock, and emits `changed` in any case: the state depends on the time.
    void refresh();

    /// Spends the earned game. Returns false, without effect, unless the state is Ready.
    [[nodiscard]] bool startPlay();

    /// Ends the running game.
    void endPlay();

    /// Whether a game is being played. Not persisted.
    [[nodiscard]] bool playingNow() const override { return playingNow_; }

    /// An expired lock is not reported.
    [[nodiscard]] State state() const;

    /// Seconds charged, 0 or more; above workToUnlock only if loaded so.
    [[nodiscard]] Seconds workSeconds() const { return workSeconds_; }
    [[nodiscard]] bool isReady() const { return ready_; }
    [[nodiscard]] std::optional<Instant> lockedUntil() const { return lockedUntil_; }

    /// 0 to 1.
    [[nodiscard]] double chargeProgress() const;

    /// Work remaining until a game is earned, 0 or more.
    [[nodiscard]] Seconds workRemaining() const;

    /// Whole seconds until the lock ends, 0 or more; 0 without one.
    [[nodiscard]] Seconds lockRemaining() const;

    /// Also true while a spent game is being played.
    [[nodiscard]] bool canPlay() const;

    /// Emitted at the end of every operation that changed something, and of every refresh() and endPlay().
    Signal<> changed;

private:
    enum class Lock { asItWas, ended };

    void setUp();
    void load();
    Lock endLockIfOver();
    void charge();
    void persist();

    const platform::Clock& clock_;
    platform::Preferences& preferences_;
    Notifier& notifier_;

    Seconds workSeconds_;
    bool ready_ = false;
    std::optional<Instant> lockedUntil_;
    bool playingNow_ = false;
    int chargedSincePersist_ = 0;
};

}  // namespace tidewatch
