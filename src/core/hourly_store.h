#pragma once

#include "core/keyed_app_store.h"

namespace tidewatch {

/// Seconds booked per clock hour of a logical day and application ("hours.json").
class HourlyStore final : public KeyedAppStore<HourKey> {
public:
    HourlyStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost)
        : KeyedAppStore(files, log, frontmost, "hours.json", "Tidewatch: failed to flush hourly store: ") {}
};

}  // namespace tidewatch
