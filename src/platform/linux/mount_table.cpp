#include "platform/linux/mount_table.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

namespace {

constexpr auto shareTypes = std::to_array<std::string_view>(
    {"9p", "afs", "ceph", "cifs", "davfs", "fuse.davfs2", "fuse.glusterfs", "fuse.rclone", "fuse.s3fs",
     "fuse.sshfs", "glusterfs", "lustre", "ncpfs", "nfs", "nfs4", "smb3", "smbfs", "virtiofs"});

// A blank in a path is "\040".
std::string unescaped(std::string_view field) {
    std::string text;
    while (!field.empty()) {
        const auto code =
            field.starts_with('\\') ? wholeNumber<unsigned>(field.substr(1, 3), 8) : std::nullopt;
        const bool isEscape = code && field.size() >= 4 && *code < 256;
        text += isEscape ? static_cast<char>(*code) : field.front();
        field.remove_prefix(isEscape ? 4 : 1);
    }
    return text;
}

std::optional<Mount> parseMount(std::string_view line) {
    // Identifier, parent, device, root, mount point, options, optional fields, "-", type, source, ...
    Mount mount;
    static_cast<void>(takeField(line));
    static_cast<void>(takeField(line));
    mount.device = takeField(line);
    mount.root = unescaped(takeField(line));
    mount.mountPoint = unescaped(takeField(line));
    static_cast<void>(takeField(line));
    for (auto field = takeField(line); field != "-"; field = takeField(line)) {
        if (field.empty()) return std::nullopt;
    }
    mount.type = takeField(line);
    mount.source = unescaped(takeField(line));
    if (!mount.mountPoint.starts_with('/') || mount.type.empty() || mount.source.empty()) return std::nullopt;
    return mount;
}

// What the mounts of one device have in common. The device number of some file systems differs between the
// subvolumes, their source does not.
std::string deviceKey(const Mount& mount) {
    if (mount.type == "zfs") return mount.source.substr(0, mount.source.find('/'));
    return mount.source;
}

bool isBelowBoot(const Mount& mount) {
    return mount.mountPoint == "/boot" || mount.mountPoint.starts_with("/boot/");
}

// The smaller the better.
auto rank(const Mount& mount) {
    return std::tuple(mount.mountPoint != "/", mount.root != "/", mount.mountPoint.size());
}

}  // namespace

std::vector<Mount> parseMountTable(std::string_view mountInfo) {
    std::vector<Mount> mounts;
    while (const auto line = takeLine(mountInfo)) {
        if (auto mount = parseMount(*line)) mounts.push_back(std::move(*mount));
    }
    return mounts;
}

std::optional<VolumeKind> volumeKind(const Mount& mount) {
    if (std::ranges::find(shareTypes, mount.type) != shareTypes.end()) return VolumeKind::share;
    if (mount.source.starts_with("/dev/loop") || mount.source.starts_with("/dev/fuse")) return std::nullopt;
    // Pseudo file systems may name any source.
    const bool isPseudo = mount.type == "tmpfs" || mount.type == "devtmpfs" || mount.type == "overlay" ||
                          mount.type == "squashfs";
    const bool isDevice = mount.source.starts_with("/dev/") || mount.type == "zfs";
    return isDevice && !isPseudo ? std::optional(VolumeKind::local) : std::nullopt;
}

std::vector<Mount> volumeMounts(const std::vector<Mount>& mounts) {
    std::vector<Mount> chosen;
    std::map<std::string, std::size_t> places;  // of a device in `chosen`
    for (const auto& mount : mounts) {
        if (!volumeKind(mount)) continue;
        const auto [place, isNew] = places.emplace(deviceKey(mount), chosen.size());
        if (isNew) {
            chosen.push_back(mount);
        } else if (auto& rival = chosen[place->second]; rank(mount) < rank(rival)) {
            rival = mount;
        }
    }
    if (!std::ranges::all_of(chosen, isBelowBoot)) std::erase_if(chosen, isBelowBoot);
    return chosen;
}

}  // namespace tidewatch::platform
