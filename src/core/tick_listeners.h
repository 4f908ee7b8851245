#pragma once

#include "base/seconds.h"
#include "base/serial_queue.h"
#include "base/tagged_string.h"

namespace tidewatch {

/// Told of each second of work; says whether it is being spent in one of the built-in games.
class GameGateListener {
public:
    virtual ~GameGateListener() = default;

    [[nodiscard]] virtual bool playingNow() const = 0;

    /// One second was worked, a played one included.
    virtual void tickWorkSecond() = 0;

    /// The engine stops: what is not yet stored is to be stored now.
    virtual void flush() = 0;
};

/// Told of presence and absence, second by second.
class BreakListener {
public:
    virtual ~BreakListener() = default;

    /// The user is away; called every idle second, not only on the first.
    virtual void userWentIdle() = 0;

    /// One second was worked; `totalToday` includes it.
    virtual void tickActiveSecond(Seconds totalToday) = 0;
};

/// Books seconds of work to the active project.
class ProjectTimeListener {
public:
    virtual ~ProjectTimeListener() = default;

    /// One second was worked on `day`. Books the application in front to the active project; without an
    /// active project it does nothing.
    virtual void bookSecond(const DayKey& day) = 0;

    /// The engine's stores have been handed to `disk` to be written; what is booked here follows.
    virtual void flushOn(JobQueue& disk) = 0;
};

/// Looks after the files of the record that are not counters.
class SmallFilesListener {
public:
    virtual ~SmallFilesListener() = default;

    /// The counters have been handed to `disk` to be written; those of these files that have gone missing
    /// follow.
    virtual void restoreMissingOn(JobQueue& disk) = 0;
};

/// Who else lives by the tick. Null stands for nobody; those given must outlive the engine.
struct TickListeners {
    GameGateListener* gameGate = nullptr;
    BreakListener* breakReminder = nullptr;
    ProjectTimeListener* projectTime = nullptr;
    SmallFilesListener* smallFiles = nullptr;
};

}  // namespace tidewatch
