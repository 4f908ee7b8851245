#include "core/minute_store.h"

namespace tidewatch {
namespace {

constexpr StoreFormat minuteFormat{"minutes.json", 2, "Tidewatch: failed to flush minute store: "};

}  // namespace

MinuteStore::MinuteStore(platform::FileSystem& files, platform::Log& log,
                         const platform::Workspace& workspace)
    : frame_(files, log, workspace, minuteFormat) {}

}  // namespace tidewatch
