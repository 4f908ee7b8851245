#pragma once

#include "classification/category_store.h"
#include "core/timer_engine.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// Flushes the record outside the tick's own schedule. Main thread only.
class RecordWriter final {
public:
    /// All references must outlive this object.
    RecordWriter(const TimerEngine& engine, CounterStores counters, ProjectTimeStore& projectTime,
                 CategoryStore& categories)
        : engine_(engine), counters_(counters), projectTime_(projectTime), categories_(categories) {}

    /// Stores the day's total in memory under the current day.
    void setDayUnderCurrentKey();

    /// Flushes days, applications and hours, as before showing the statistics on a reopen request.
    void flushForReopening();

    /// Flushes all counters.
    void flushAll();

    /// Flushes newly registered categories of applications.
    void flushCategories() { categories_.flushRegistered(); }

private:
    const TimerEngine& engine_;
    CounterStores counters_;
    ProjectTimeStore& projectTime_;
    CategoryStore& categories_;
};

}  // namespace tidewatch
