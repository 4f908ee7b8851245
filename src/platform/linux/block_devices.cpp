#include "platform/linux/block_devices.h"

#include <stdlib.h>
#include <unistd.h>

#include <memory>
#include <utility>

#include "platform/linux/kernel_file.h"
#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

namespace {

constexpr int maxStack = 8;  // of devices on devices

std::string resolved(const std::string& path) {
    const std::unique_ptr<char, void (*)(void*)> target(::realpath(path.c_str(), nullptr), ::free);
    return target ? target.get() : "";
}

std::string baseName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

// The device manager writes unusual bytes as "\x20".
std::string decodedLabel(std::string_view name) {
    std::string label;
    while (!name.empty()) {
        const auto code =
            name.starts_with("\\x") ? wholeNumber<unsigned>(name.substr(2, 2), 16) : std::nullopt;
        const bool isEscape = code && name.size() >= 4;
        label += isEscape ? static_cast<char>(*code) : name.front();
        name.remove_prefix(isEscape ? 4 : 1);
    }
    return label;
}

}  // namespace

BlockDevices::BlockDevices(std::string sysDirectory, std::string devDirectory)
    : sysDirectory_(std::move(sysDirectory)), devDirectory_(std::move(devDirectory)) {}

std::string BlockDevices::kernelName(const Mount& mount) const {
    const auto directory = resolved(sysDirectory_ + "/dev/block/" + mount.device);
    if (!directory.empty()) return baseName(directory);
    constexpr std::string_view devices = "/dev/";
    if (!mount.source.starts_with(devices)) return "";
    const auto device = resolved(devDirectory_ + "/" + mount.source.substr(devices.size()));
    return baseName(device.empty() ? mount.source : device);
}

std::optional<std::string> BlockDevices::label(const std::string& kernelName) const {
    const auto labels = devDirectory_ + "/disk/by-label";
    for (const auto& name : namesIn(labels)) {
        if (baseName(resolved(labels + "/" + name)) == kernelName) return decodedLabel(name);
    }
    return std::nullopt;
}

bool BlockDevices::isInternal(const std::string& kernelName) const {
    auto name = kernelName;
    for (int depth = 0; depth < maxStack && !name.empty(); ++depth) {
        const auto directory = resolved(sysDirectory_ + "/class/block/" + name);
        if (directory.empty()) return true;
        if (directory.find("/usb") != std::string::npos) return false;
        const bool isPartition = ::access((directory + "/partition").c_str(), F_OK) == 0;
        const auto disk = isPartition ? directory.substr(0, directory.rfind('/')) : directory;
        const auto removable = readKernelFile(disk + "/removable");
        if (removable && removable->starts_with('1')) return false;
        // Of one that lies on several the first tells.
        const auto below = namesIn(disk + "/slaves");
        name = below.empty() ? "" : below.front();
    }
    return true;
}

}  // namespace tidewatch::platform
