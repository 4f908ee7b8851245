#pragma once

#include <utility>

#include "platform/api/disk_volumes.h"

namespace tidewatch::platform {

/// Volumes that the test sets; a reading is complete when the test says so.
class FakeDiskVolumes final : public DiskVolumes {
public:
    void refresh() override { ++refreshes; }
    [[nodiscard]] std::optional<std::vector<MountedVolume>> latest() const override { return latest_; }

    /// Completes a reading with this result.
    void finish(std::optional<std::vector<MountedVolume>> volumes) {
        latest_ = std::move(volumes);
        refreshed.emit();
    }

    int refreshes = 0;

private:
    std::optional<std::vector<MountedVolume>> latest_;
};

}  // namespace tidewatch::platform
