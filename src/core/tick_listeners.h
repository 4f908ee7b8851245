#pragma once

#include "base/seconds.h"
#include "base/serial_queue.h"
#include "base/tagged_string.h"

namespace tidewatch {

/// Counts each second of work, and tells whether a built-in game is being played.
class GameGateListener {
public:
    virtual ~GameGateListener() = default;

    [[nodiscard]] virtual bool playingNow() const = 0;

    /// Called for each second of work, including those played.
    virtual void tickWorkSecond() = 0;

    /// Called when the engine stops: unsaved state must be persisted.
    virtual void flush() = 0;
};

/// Called each second with the user's presence or absence.
class BreakListener {
public:
    virtual ~BreakListener() = default;

    /// Called for every idle second, not only the first.
    virtual void userWentIdle() = 0;

    /// Called for each second of work; `totalToday` includes it.
    virtual void tickActiveSecond(Seconds totalToday) = 0;
};

/// Books seconds of work to the active project.
class ProjectTimeListener {
public:
    virtual ~ProjectTimeListener() = default;

    /// Called for each second of work on `day`. Books it to the active project and the frontmost application;
    /// no effect without an active project.
    virtual void bookSecond(const DayKey& day) = 0;

    /// Called after the engine's stores were queued on `disk`; queues this listener's.
    virtual void flushOn(JobQueue& disk) = 0;
};

/// Maintains the files of the record that are not counters.
class SmallFilesListener {
public:
    virtual ~SmallFilesListener() = default;

    /// Called after the counters were queued on `disk`; queues missing files.
    virtual void restoreMissingOn(JobQueue& disk) = 0;
};

/// The tick's listeners. May be null; otherwise they must outlive the engine.
struct TickListeners {
    GameGateListener* gameGate = nullptr;
    BreakListener* breakReminder = nullptr;
    ProjectTimeListener* projectTime = nullptr;
    SmallFilesListener* smallFiles = nullptr;
};

}  // namespace tidewatch
