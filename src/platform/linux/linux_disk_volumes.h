#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/api/disk_volumes.h"
#include "platform/api/main_loop.h"
#include "platform/linux/block_devices.h"
#include "platform/linux/kernel_file.h"
#include "platform/linux/patient_worker.h"

namespace tidewatch::platform {

/// The size of a file system in bytes.
struct VolumeSize {
    std::int64_t total = 0;
    std::int64_t free = 0;  ///< for an ordinary user
};

/// The volumes of the mount table. One thread asks all local ones for their sizes, and one each network
/// share, so that a server that does not respond delays nothing else. A share has no size until it has told
/// one.
class LinuxDiskVolumes final : public DiskVolumes {
public:
    /// The size of what is mounted on a directory; nullopt if that is no directory, or does not tell. Called
    /// on other threads, at any time until it has returned.
    using SizeOf = std::function<std::optional<VolumeSize>(const std::string& mountPoint)>;

    /// Where the machine tells about its volumes, and how they are asked; other ones are for tests.
    struct Sources {
        std::string mountInfo = "/proc/self/mountinfo";
        std::string sysDirectory = "/sys";
        std::string devDirectory = "/dev";
        SizeOf sizeOf = askForSize;
    };

    explicit LinuxDiskVolumes(MainLoop& mainLoop);
    LinuxDiskVolumes(MainLoop& mainLoop, const Sources& sources);
    LinuxDiskVolumes(const LinuxDiskVolumes&) = delete;
    LinuxDiskVolumes& operator=(const LinuxDiskVolumes&) = delete;
    ~LinuxDiskVolumes() override;

    void refresh() override;
    [[nodiscard]] std::optional<std::vector<MountedVolume>> latest() const override { return latest_; }

    /// Asks the system; may block.
    [[nodiscard]] static std::optional<VolumeSize> askForSize(const std::string& mountPoint);

private:
    class Reader;

    void take(std::optional<std::vector<MountedVolume>> volumes);

    // Through which a reading finds its way back; null once this object is gone.
    struct Owner {
        std::mutex mutex;
        LinuxDiskVolumes* volumes = nullptr;
        MainLoop* mainLoop = nullptr;
    };

    const std::shared_ptr<Owner> owner_ = std::make_shared<Owner>();
    const std::shared_ptr<Reader> reader_;
    std::optional<PatientWorker> worker_;
    std::optional<std::vector<MountedVolume>> latest_;
};

}  // namespace tidewatch::platform
