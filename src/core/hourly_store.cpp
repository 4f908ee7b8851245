#include "core/hourly_store.h"

namespace tidewatch {
namespace {

constexpr StoreFormat hourlyFormat{"hours.json", 2, "Tidewatch: failed to flush hourly store: "};

}  // namespace

HourlyStore::HourlyStore(platform::FileSystem& files, platform::Log& log,
                         platform::FrontmostApplication& frontmost)
    : frame_(files, log, frontmost, hourlyFormat) {}

}  // namespace tidewatch
