#pragma once

#include "core/broadcaster.h"
#include "projects/active_project_booking.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"

namespace tidewatch {

/// The projects, their time and its booking, built together. Main thread only.
struct ProjectTracking final {
    /// All of it must outlive the bundle.
    struct Dependencies {
        platform::FileSystem& files;
        platform::Log& log;
        platform::Randomness& randomness;
        platform::FrontmostApplication& frontmost;
        const Broadcaster& broadcaster;
    };

    explicit ProjectTracking(const Dependencies& dependencies)
        : store(dependencies.files, dependencies.log, dependencies.randomness, dependencies.broadcaster),
          times(dependencies.files, dependencies.log, dependencies.frontmost),
          booking(store, times) {}

    ProjectStore store;
    ProjectTimeStore times;
    ActiveProjectBooking booking;
};

}  // namespace tidewatch
