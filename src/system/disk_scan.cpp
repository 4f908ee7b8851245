#include "system/disk_scan.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>

#include "base/lower_case.h"
#include "system/last_component.h"

namespace tidewatch {

namespace {

using platform::FileKind;
using platform::FileTime;

constexpr std::size_t maxFiles = 60;
constexpr std::size_t maxFolders = 15;

// `text` without any occurrence of `part`.
std::string without(std::string_view text, std::string_view part) {
    std::string rest;
    for (auto place = text.find(part); place != std::string_view::npos; place = text.find(part)) {
        rest += text.substr(0, place);
        text.remove_prefix(place + part.size());
    }
    rest += text;
    return rest;
}

// Some file systems have no such time and report the epoch.
bool isMissing(FileTime time) {
    return time == FileTime();
}

FileTime lastAccess(const platform::FoundFile& found) {
    if (!found.accessIsRecorded) return std::max(found.accessed, found.info.modified);
    return isMissing(found.accessed) ? found.info.modified : found.accessed;
}

template <class Row>
void keepFirst(std::vector<Row>& rows, std::size_t count) {
    if (rows.size() > count) rows.resize(count);
}

}  // namespace

std::string ScannedFile::ext() const {
    const auto dot = name.rfind('.');
    // A name that begins with its only dot has none.
    if (dot == std::string::npos || dot == 0) return "";
    return lowerCased(std::string_view(name).substr(dot + 1));
}

DiskScan::DiskScan(Instant now) : cutOff_(now - std::chrono::days(oldDays)) {}

void DiskScan::enterRoot(const std::string& root) {
    root_ = root;
    rootPrefix_ = root + "/";
    directory_.clear();
    directorySize_ = nullptr;
    result_.scannedRoots.push_back(lastComponent(root));
}

std::int64_t& DiskScan::topLevelSize(std::string_view path) {
    const auto directory = path.substr(0, path.rfind('/') + 1);
    // Files of one directory follow one another.
    if (directorySize_ && directory == directory_) return *directorySize_;
    const auto relative = without(path, rootPrefix_);
    const auto begin = std::min(relative.find_first_not_of('/'), relative.size());
    const auto end = std::min(relative.find('/', begin), relative.size());
    const auto item = begin == end ? lastComponent(path) : relative.substr(begin, end - begin);
    auto& size = sizes_[rootPrefix_ + item];
    directory_ = directory;
    // The item of a file that lies directly in the root is that file.
    directorySize_ = end < relative.size() ? &size : nullptr;
    return size;
}

void DiskScan::add(const platform::FoundFile& found) {
    if (found.info.kind != FileKind::file) return;
    const auto size = static_cast<std::int64_t>(found.info.size);
    result_.totalScannedBytes += size;
    topLevelSize(found.path) += size;
    result_.lacksAccessTimes = result_.lacksAccessTimes || !found.accessIsRecorded;
    if (size < largeBytes) return;
    const auto accessed = lastAccess(found);
    result_.largeOld.push_back({.path = std::string(found.path),
                                .name = lastComponent(found.path),
                                .size = size,
                                .lastAccess = accessed,
                                .isOld = accessed < cutOff_});
}

DiskScanResult DiskScan::result() && {
    auto& files = result_.largeOld;
    std::ranges::stable_sort(files, [](const ScannedFile& a, const ScannedFile& b) {
        return a.isOld != b.isOld ? a.isOld : a.size > b.size;
    });
    keepFirst(files, maxFiles);
    auto& folders = result_.topFolders;
    for (const auto& [path, size] : sizes_)
        folders.push_back({.path = path, .name = lastComponent(path), .size = size});
    // By path where sizes are equal, so that the list does not depend on the table.
    std::ranges::sort(folders, [](const FolderSize& a, const FolderSize& b) {
        return a.size != b.size ? a.size > b.size : a.path < b.path;
    });
    keepFirst(folders, maxFolders);
    for (const auto& file : files) {
        if (file.isOld) result_.reclaimableBytes += file.size;
    }
    return std::move(result_);
}

}  // namespace tidewatch
