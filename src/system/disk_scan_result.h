#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/instant.h"
#include "base/uuid.h"
#include "platform/api/file_info.h"

namespace tidewatch {

/// A large file that a scan has found.
struct ScannedFile {
    Uuid id{};           ///< new in each scan
    std::string path{};  ///< absolute; need not be UTF-8
    std::string name{};  ///< the last component of the path
    std::int64_t size = 0;
    platform::FileTime lastAccess{};
    bool isOld = false;  ///< not accessed since the cut-off

    /// What follows the last dot of the name, in lower case; empty without one.
    [[nodiscard]] std::string ext() const;
};

/// What lies directly in one of the roots, with everything below it.
struct FolderSize {
    Uuid id{};  ///< new in each scan
    std::string path{};
    std::string name{};
    std::int64_t size = 0;
};

/// What a scan has found. Sizes in bytes.
struct DiskScanResult {
    std::vector<ScannedFile> largeOld{};   ///< old ones first, then by size; at most 60
    std::vector<FolderSize> topFolders{};  ///< the largest first; at most 15
    std::int64_t totalScannedBytes = 0;    ///< of all regular files
    std::int64_t reclaimableBytes = 0;     ///< of the old ones in `largeOld`
    std::vector<std::string> scannedRoots{};
    std::optional<Instant> finishedAt{};  ///< nullopt before the end of the first scan
    /// Whether a volume does not record accesses; there the time of the last change counts, too.
    bool lacksAccessTimes = false;
};

}  // namespace tidewatch
