#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewatch::platform {

/// One line of /proc/self/mountinfo.
struct Mount {
    std::string device;  ///< "8:1"; the first number is 0 for what has no block device of its own
    std::string root;    ///< of the mount within its file system: "/", or what is bound or a subvolume
    std::string mountPoint;
    std::string type;
    std::string source;  ///< "/dev/sda1", "server:/share"
};

/// The lines of a mountinfo file; one that cannot be read is left out.
[[nodiscard]] std::vector<Mount> parseMountTable(std::string_view mountInfo);

/// Where a volume's bytes are.
enum class VolumeKind {
    local,
    share,  ///< on another machine, which may not respond
};

/// Whether a mount is what a person would call a volume: a block device or a network share, but no loop image
/// and no pseudo file system. Nullopt if not.
[[nodiscard]] std::optional<VolumeKind> volumeKind(const Mount& mount);

/// The volumes among the mounts, each device once, in the order of the table. Of several mounts of a device
/// the root, else a whole file system, else the one with the shortest path counts. What is mounted under
/// /boot is left out, unless nothing else is there.
[[nodiscard]] std::vector<Mount> volumeMounts(const std::vector<Mount>& mounts);

}  // namespace tidewatch::platform
