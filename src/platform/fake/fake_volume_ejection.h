#pragma once

#include <utility>
#include <vector>

#include "platform/api/volume_ejection.h"

namespace tidewatch::platform {

/// Ejects nothing before the test says how it ends.
class FakeVolumeEjection final : public VolumeEjection {
public:
    void eject(const std::string& mountPoint,
               std::function<void(const std::optional<EjectionError>& error)> done) override {
        requested.push_back(mountPoint);
        pending_.push_back(std::move(done));
    }

    /// Ends the first request that has not ended.
    void finish(const std::optional<EjectionError>& error = std::nullopt) {
        const auto done = std::move(pending_.front());
        pending_.erase(pending_.begin());
        done(error);
    }

    std::vector<std::string> requested;  ///< the mount points of all requests

private:
    std::vector<std::function<void(const std::optional<EjectionError>& error)>> pending_;
};

}  // namespace tidewatch::platform
