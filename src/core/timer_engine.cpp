#include "core/timer_engine.h"

#include <chrono>
#include <string>
#include <tuple>

#include "core/identifiers.h"

namespace tidewatch {
namespace {

constexpr std::chrono::seconds tickInterval(1);
constexpr int ticksBetweenFlushes = 30;

}  // namespace

TimerEngine::TimerEngine(const platform::Clock& clock, platform::MainLoop& mainLoop, const Settings& settings,
                         const IdleMonitor& idleMonitor, const ClockKeys& keys, CounterStores stores,
                         JobQueue& disk, TickListeners listeners)
    : clock_(clock),
      mainLoop_(mainLoop),
      settings_(settings),
      idleMonitor_(idleMonitor),
      keys_(keys),
      stores_(stores),
      disk_(disk),
      listeners_(listeners),
      games_(std::string(gamesApplicationId)),
      currentDay_(stores.daily.dayKey(clock.now())),
      alive_(std::make_shared<TimerEngine*>(this)) {
    todaySeconds_ = stores_.daily.seconds(currentDay_);
}

void TimerEngine::start() {
    if (ticker_) return;
    ticker_ = mainLoop_.repeat(tickInterval, platform::TimerMode::common, [this] {
        mainLoop_.post([engine = std::weak_ptr(alive_)] {
            if (const auto alive = engine.lock()) (*alive)->tick();
        });
    });
}

void TimerEngine::stop() {
    ticker_.reset();
    writeDay();
    flushStores();
    disk_.finish();
    if (listeners_.gameGate) listeners_.gameGate->flush();
}

void TimerEngine::resetToday() {
    todaySeconds_ = Seconds();
    liveSeconds_ = Seconds();
    writeDay();
    stores_.daily.flush();
    changed.emit();
}

void TimerEngine::tick() {
    const auto before = std::tuple(liveSeconds_, todaySeconds_, status_);

    checkDay();

    const bool idle =
        idleMonitor_.secondsSinceLastInput() >= static_cast<double>(settings_.idleThresholdSeconds());
    if (idle) {
        status_ = Status::idle;
        if (listeners_.breakReminder) listeners_.breakReminder->userWentIdle();
    } else {
        bookSecond();
    }
    wasIdle_ = idle;

    if (++ticksSinceFlush_ >= ticksBetweenFlushes) {
        writeDay();
        flushStores();
        ticksSinceFlush_ = 0;
        // The flush took a while: the day may have changed before what follows this tick.
        checkDay();
    }

    if (before != std::tuple(liveSeconds_, todaySeconds_, status_)) changed.emit();
}

void TimerEngine::checkDay() {
    if (const auto day = stores_.daily.dayKey(clock_.now()); day != currentDay_) moveToDay(day);
}

// The new day's counter is reloaded, not zeroed: it may be a day that already has time.
void TimerEngine::moveToDay(const DayKey& day) {
    writeDay();
    stores_.daily.flushOn(disk_);
    currentDay_ = day;
    todaySeconds_ = stores_.daily.seconds(day);
    liveSeconds_ = Seconds();
}

void TimerEngine::bookSecond() {
    if (wasIdle_) liveSeconds_ = Seconds();
    liveSeconds_ += Seconds(1);
    todaySeconds_ += Seconds(1);
    status_ = Status::active;
    writeDay();
    if (listeners_.gameGate && listeners_.gameGate->playingNow()) {
        bookToGames();
    } else {
        bookToCurrentApp();
    }
    if (listeners_.gameGate) listeners_.gameGate->tickWorkSecond();
    if (listeners_.breakReminder) listeners_.breakReminder->tickActiveSecond(todaySeconds_);
    if (listeners_.projectTime) listeners_.projectTime->bookSecond(currentDay_);
}

// Hours and buckets are named after the moment of their booking, not after the day that the engine counts
// for.
void TimerEngine::bookToGames() {
    stores_.apps.incrementApp(games_, currentDay_);
    stores_.hours.incrementApp(games_, keys_.hourKey(clock_.now()));
    stores_.minutes.incrementApp(games_, keys_.bucketKey(clock_.now()));
}

void TimerEngine::bookToCurrentApp() {
    stores_.apps.incrementCurrentApp(currentDay_);
    stores_.hours.incrementCurrentApp(keys_.hourKey(clock_.now()));
    stores_.minutes.incrementCurrentApp(keys_.bucketKey(clock_.now()));
}

void TimerEngine::writeDay() {
    stores_.daily.set(todaySeconds_, currentDay_);
}

void TimerEngine::flushStores() {
    stores_.daily.flushOn(disk_);
    stores_.apps.flushOn(disk_);
    stores_.hours.flushOn(disk_);
    stores_.minutes.flushOn(disk_);
    if (listeners_.projectTime) listeners_.projectTime->flushOn(disk_);
    if (listeners_.smallFiles) listeners_.smallFiles->restoreMissingOn(disk_);
}

}  // namespace tidewatch
