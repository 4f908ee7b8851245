#pragma once

#include "core/tick_listeners.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// Books each second of work to the project active at that moment. Main thread only.
class ActiveProjectBooking final : public ProjectTimeListener {
public:
    /// Both must outlive it.
    ActiveProjectBooking(const ProjectStore& projects, ProjectTimeStore& times)
        : projects_(projects), times_(times) {}

    void bookSecond(const DayKey& day) override {
        if (const auto active = projects_.activeProjectId()) times_.incrementCurrentApp(day, *active);
    }

    void flushOn(JobQueue& disk) override { times_.flushOn(disk); }

private:
    const ProjectStore& projects_;
    ProjectTimeStore& times_;
};

}  // namespace tidewatch
