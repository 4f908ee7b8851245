#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "base/signal.h"
#include "platform/api/disk_volumes.h"
#include "platform/api/log.h"
#include "platform/api/volume_ejection.h"

namespace tidewatch {

/// Ejects volumes for the user. Main thread only.
class VolumeEjector final {
public:
    using Done = std::function<void(const std::optional<platform::EjectionError>& error)>;

    /// All of it must outlive the ejector.
    struct Dependencies {
        platform::VolumeEjection& ejection;
        platform::DiskVolumes& volumes;
        platform::Log& log;
    };

    explicit VolumeEjector(const Dependencies& dependencies) : dependencies_(dependencies) {}
    VolumeEjector(const VolumeEjector&) = delete;
    VolumeEjector& operator=(const VolumeEjector&) = delete;

    /// Emitted when an ejection begins or ends, before `done` is called.
    Signal<> changed;

    [[nodiscard]] bool isEjecting(const std::string& mountPoint) const {
        return ejecting_.contains(mountPoint);
    }

    /// Ejects the volume at `mountPoint` and reads the volumes again; calls `done` later. Ignored, `done`
    /// included, while it is being ejected.
    void eject(const std::string& mountPoint, Done done);

private:
    Dependencies dependencies_;
    std::set<std::string> ejecting_;
    // Lets a pending ejection detect that this object has been destroyed.
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

}  // namespace tidewatch
