#include "platform/linux/linux_disk_volumes.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <limits>
#include <utility>

#include "platform/linux/mount_table.h"

namespace tidewatch::platform {

namespace {

constexpr char rootName[] = "Sistema";

std::int64_t bytesOf(std::uint64_t blocks, std::uint64_t blockSize) {
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (blockSize != 0 && blocks > most / blockSize) return std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(blocks * blockSize);
}

}  // namespace

// Reads on the worker's thread; what is in it belongs to that thread.
class LinuxDiskVolumes::Reader final {
public:
    explicit Reader(const Sources& sources)
        : mountInfo_(sources.mountInfo),
          devices_(sources.sysDirectory, sources.devDirectory),
          sizeOf_(sources.sizeOf) {}

    std::optional<std::vector<MountedVolume>> read() {
        if (described_.empty() || mountInfo_.mayHaveChanged()) {
            const auto text = mountInfo_.read();
            if (!text) return std::nullopt;
            if (described_ != *text) describe(*text);
        }
        std::vector<MountedVolume> volumes;
        for (const auto& [volume, kind] : volumes_) {
            auto sized = volume;
            const auto size = kind == VolumeKind::share ? shareSize(volume.path) : sizeOf_(volume.path);
            if (size) {
                sized.totalBytes = size->total;
                sized.freeBytes = size->free;
            }
            volumes.push_back(std::move(sized));
        }
        return volumes;
    }

private:
    // A share whose size is asked on a thread of its own.
    struct Share {
        std::mutex mutex;
        std::optional<VolumeSize> size;  // the last one that it told
        PatientWorker worker;
    };

    // Only when something is mounted or unmounted.
    void describe(std::string_view text) {
        described_ = text;
        volumes_.clear();
        std::map<std::string, std::shared_ptr<Share>> shares;
        for (const auto& mount : volumeMounts(parseMountTable(text))) {
            const auto kind = volumeKind(mount).value_or(VolumeKind::local);
            MountedVolume volume{.path = mount.mountPoint};
            if (kind == VolumeKind::share) {
                volume.isInternal = false;
                auto& known = shares_[mount.mountPoint];
                shares[mount.mountPoint] = known ? known : std::make_shared<Share>();
            } else {
                const auto name = devices_.kernelName(mount);
                volume.isInternal = devices_.isInternal(name);
                volume.name = devices_.label(name);
                if (!volume.name && mount.mountPoint == "/") volume.name = rootName;
            }
            volumes_.emplace_back(std::move(volume), kind);
        }
        shares_ = std::move(shares);
    }

    std::optional<VolumeSize> shareSize(const std::string& mountPoint) {
        const auto share = shares_.at(mountPoint);
        share->worker.tryRun([share = std::weak_ptr(share), sizeOf = sizeOf_, mountPoint] {
            const auto size = sizeOf(mountPoint);
            const auto owner = share.lock();
            if (!size || !owner) return;
            const std::lock_guard lock(owner->mutex);
            owner->size = size;
        });
        const std::lock_guard lock(share->mutex);
        return share->size;
    }

    KernelFile mountInfo_;
    const BlockDevices devices_;
    const SizeOf sizeOf_;
    std::string described_;
    std::vector<std::pair<MountedVolume, VolumeKind>> volumes_;
    std::map<std::string, std::shared_ptr<Share>> shares_;  // by mount point
};

LinuxDiskVolumes::LinuxDiskVolumes(MainLoop& mainLoop) : LinuxDiskVolumes(mainLoop, Sources()) {}

LinuxDiskVolumes::LinuxDiskVolumes(MainLoop& mainLoop, const Sources& sources)
    : reader_(std::make_shared<Reader>(sources)) {
    owner_->volumes = this;
    owner_->mainLoop = &mainLoop;
}

LinuxDiskVolumes::~LinuxDiskVolumes() {
    const std::lock_guard lock(owner_->mutex);
    owner_->volumes = nullptr;
    owner_->mainLoop = nullptr;
}

void LinuxDiskVolumes::refresh() {
    // No thread before somebody asks.
    if (!worker_) worker_.emplace();
    worker_->tryRun([reader = reader_, owner = owner_] {
        auto volumes = reader->read();
        const std::lock_guard lock(owner->mutex);
        if (!owner->mainLoop) return;
        owner->mainLoop->post([owner, volumes = std::move(volumes)] {
            // Destroyed on the main thread, where this runs.
            if (owner->volumes) owner->volumes->take(volumes);
        });
    });
}

void LinuxDiskVolumes::take(std::optional<std::vector<MountedVolume>> volumes) {
    latest_ = std::move(volumes);
    refreshed.emit();
}

std::optional<VolumeSize> LinuxDiskVolumes::askForSize(const std::string& mountPoint) {
    struct stat status {};
    // Containers bind single files.
    if (::stat(mountPoint.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
    struct statvfs size {};
    if (::statvfs(mountPoint.c_str(), &size) != 0) return std::nullopt;
    return VolumeSize{.total = bytesOf(size.f_blocks, size.f_frsize),
                      .free = bytesOf(size.f_bavail, size.f_frsize)};
}

}  // namespace tidewatch::platform
