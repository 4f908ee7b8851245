#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/api/file_info.h"
#include "system/disk_scan_result.h"

namespace tidewatch {

/// The arithmetic of a scan, file by file. Memory follows the number of large files and of what lies directly
/// in the roots.
class DiskScan final {
public:
    static constexpr std::int64_t largeBytes = 50 * 1024 * 1024;
    static constexpr int oldDays = 120;

    /// Files that were last accessed before `now` less `oldDays` are old.
    explicit DiskScan(Instant now);

    /// What follows is in this root, a path without a trailing slash.
    void enterRoot(const std::string& root);

    /// Counts an entry below the root, if it is a regular file.
    void add(const platform::FoundFile& found);

    /// Sorted and cut; without identifiers and the end of the scan.
    [[nodiscard]] DiskScanResult result() &&;

private:
    using Sizes = std::unordered_map<std::string, std::int64_t>;

    [[nodiscard]] std::int64_t& topLevelSize(std::string_view path);

    const platform::FileTime cutOff_;
    std::string root_;
    std::string rootPrefix_;                 // with a trailing slash
    Sizes sizes_;                            // by path, of what lies directly in a root
    std::string directory_;                  // of the last file, with a trailing slash
    std::int64_t* directorySize_ = nullptr;  // of the top-level item that all of `directory_` belongs to
    DiskScanResult result_;
};

}  // namespace tidewatch
