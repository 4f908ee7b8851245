#include "core/hourly_store.h"

namespace tidewatch {
namespace {

constexpr StoreFormat hourlyFormat{"hours.json", 2, "Tidewatch: failed to flush hourly store: "};

}  // namespace

HourlyStore::HourlyStore(platform::FileSystem& files, platform::Log& log,
                         const platform::Workspace& workspace)
    : frame_(files, log, workspace, hourlyFormat) {}

}  // namespace tidewatch
