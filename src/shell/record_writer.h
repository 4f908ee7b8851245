#pragma once

#include "classification/category_store.h"
#include "core/timer_engine.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// Brings the record to the disk at the moments that are not the tick's own. Main thread only.
class RecordWriter final {
public:
    /// All that is given must outlive this object.
    RecordWriter(const TimerEngine& engine, CounterStores counters, ProjectTimeStore& projectTime,
                 CategoryStore& categories)
        : engine_(engine), counters_(counters), projectTime_(projectTime), categories_(categories) {}

    /// Sets the day's total in memory under the day that the clock shows.
    void setDayUnderCurrentKey();

    /// The days, applications and hours, which is what is read by whoever asks the program to come to the
    /// front.
    void flushForReopening();

    /// Everything that is counted.
    void flushAll();

    /// What applications were found to be since the last time.
    void flushCategories() { categories_.flushRegistered(); }

private:
    const TimerEngine& engine_;
    CounterStores counters_;
    ProjectTimeStore& projectTime_;
    CategoryStore& categories_;
};

}  // namespace tidewatch
