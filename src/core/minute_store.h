#pragma once

#include "core/keyed_app_store.h"

namespace tidewatch {

/// Seconds booked per ten minutes of a logical day and application ("minutes.json").
class MinuteStore final : public KeyedAppStore<BucketKey> {
public:
    MinuteStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost)
        : KeyedAppStore(files, log, frontmost, "minutes.json", "Tidewatch: failed to flush minute store: ") {}
};

}  // namespace tidewatch
