#pragma once

#include "core/broadcaster.h"
#include "projects/active_project_booking.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// The projects, their time, and what books it, built together. Main thread only.
struct ProjectTracking final {
    /// All of it must outlive the bundle.
    struct Needs {
        platform::FileSystem& files;
        platform::Log& log;
        platform::Randomness& randomness;
        platform::FrontmostApplication& frontmost;
        const Broadcaster& broadcaster;
    };

    explicit ProjectTracking(const Needs& needs)
        : store(needs.files, needs.log, needs.randomness, needs.broadcaster),
          times(needs.files, needs.log, needs.frontmost),
          booking(store, times) {}

    ProjectStore store;
    ProjectTimeStore times;
    ActiveProjectBooking booking;
};

}  // namespace tidewatch
