#pragma once

#include <optional>
#include <string>

#include "platform/linux/mount_table.h"

namespace tidewatch::platform {

/// What the kernel and the device manager tell about the block device of a mount, in /sys and /dev.
class BlockDevices final {
public:
    BlockDevices(std::string sysDirectory, std::string devDirectory);

    /// The kernel's name ("sda1") of the mount's device, following names that the system made up.
    [[nodiscard]] std::string kernelName(const Mount& mount) const;

    /// The label of the file system on the device.
    [[nodiscard]] std::optional<std::string> label(const std::string& kernelName) const;

    /// Whether it is built in: neither removable nor on USB. An encrypted volume is where its device is.
    [[nodiscard]] bool isInternal(const std::string& kernelName) const;

private:
    const std::string sysDirectory_;
    const std::string devDirectory_;
};

}  // namespace tidewatch::platform
