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

/// A game has to be earned: an hour of work charges one game, and starting it locks the arcade for two
/// hours, in which work charges nothing. Kept in the preferences; the charge reaches them every 30 seconds,
/// so that an abrupt end costs 29 at most. The first game of a new installation is free. Main thread only.
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

    /// Takes up what is stored. A lock that has run out meanwhile is kept until the next tick or refresh.
    /// All three must outlive it.
    GameGate(const platform::Clock& clock, platform::Preferences& preferences, Notifier& notifier);
    GameGate(const GameGate&) = delete;
    GameGate& operator=(const GameGate&) = delete;

    /// One second was worked: ends a lock that has run out, and charges unless the gate is locked, a game
    /// waits to be played or one is being played. The last second of the hour tells the user.
    void tickWorkSecond() override;

    /// Stores everything that is stored.
    void flush() override { persist(); }

    /// Ends a lock that has run out, and announces a change in any case: the state depends on the time.
    void refresh();

    /// Spends the earned game. False, and nothing happens, unless the state is Ready.
    [[nodiscard]] bool startPlay();

    /// The running game is over, however long it took.
    void endPlay();

    /// A game is being played. Not stored.
    [[nodiscard]] bool playingNow() const override { return playingNow_; }

    /// A lock that has run out reads as gone.
    [[nodiscard]] State state() const;

    /// Seconds charged, 0 or more; above workToUnlock only if they were stored so.
    [[nodiscard]] Seconds workSeconds() const { return workSeconds_; }
    [[nodiscard]] bool isReady() const { return ready_; }
    [[nodiscard]] std::optional<Instant> lockedUntil() const { return lockedUntil_; }

    /// 0 to 1.
    [[nodiscard]] double chargeProgress() const;

    /// Work that is missing for a game, 0 or more.
    [[nodiscard]] Seconds workRemaining() const;

    /// Whole seconds to the end of the lock, 0 or more; 0 without one.
    [[nodiscard]] Seconds lockRemaining() const;

    /// A game in course stays playable although it has been spent.
    [[nodiscard]] bool canPlay() const;

    /// Announced at the end of every operation that changed something, and of every refresh() and endPlay().
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
