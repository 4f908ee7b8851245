#pragma once

#include <sys/stat.h>

#include "platform/api/file_info.h"

namespace tidewatch::platform {

[[nodiscard]] inline FileTime fileTime(const timespec& time) {
    return FileTime(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

[[nodiscard]] inline FileKind fileKind(mode_t mode) {
    if (S_ISREG(mode)) return FileKind::file;
    if (S_ISLNK(mode)) return FileKind::link;
    return S_ISDIR(mode) ? FileKind::directory : FileKind::other;
}

/// Converts the result of stat().
[[nodiscard]] inline FileInfo fileInfo(const struct stat& status) {
    return {
        .kind = fileKind(status.st_mode),
        .size = static_cast<std::uint64_t>(status.st_size),
        .modified = fileTime(status.st_mtim),
        .identity = {.device = status.st_dev, .inode = status.st_ino},
    };
}

}  // namespace tidewatch::platform
