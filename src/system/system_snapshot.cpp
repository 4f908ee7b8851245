#include "system/system_snapshot.h"

#include <algorithm>

namespace tidewatch {

std::int64_t DiskVolume::usedBytes() const {
    return std::max<std::int64_t>(totalBytes - freeBytes, 0);
}

double DiskVolume::usedFraction() const {
    if (totalBytes < 1) return 0;
    return static_cast<double>(usedBytes()) / static_cast<double>(totalBytes);
}

double SystemSnapshot::ramUsedFraction() const {
    if (ramTotal == 0) return 0;
    return static_cast<double>(ramUsed) / static_cast<double>(ramTotal);
}

}  // namespace tidewatch
