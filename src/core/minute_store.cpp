#include "core/minute_store.h"

namespace tidewatch {
namespace {

constexpr StoreFormat minuteFormat{"minutes.json", 2, "Tidewatch: failed to flush minute store: "};

}  // namespace

MinuteStore::MinuteStore(platform::FileSystem& files, platform::Log& log,
                         platform::FrontmostApplication& frontmost)
    : frame_(files, log, frontmost, minuteFormat) {}

}  // namespace tidewatch
