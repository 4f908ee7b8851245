#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/signal.h"

namespace tidewatch::platform {

/// A mounted volume as the system describes it; what it does not tell is nullopt.
struct MountedVolume {
    std::string path{};  ///< mount point, absolute
    std::optional<std::string> name{};
    std::optional<std::int64_t> totalBytes{};
    std::optional<std::int64_t> freeBytes{};  ///< available to the user
    bool isBrowsable = true;                  ///< whether a person would call it a volume
    std::optional<bool> isInternal{};
};

/// The mounted volumes. Main thread only; never blocks, even if a volume does not respond.
class DiskVolumes {
public:
    virtual ~DiskVolumes() = default;

    /// Starts reading them in the background, unless that is in progress.
    virtual void refresh() = 0;

    /// The last reading, hidden volumes left out; nullopt before the first one, or if there is no list. A
    /// volume that does not respond keeps its figures.
    [[nodiscard]] virtual std::optional<std::vector<MountedVolume>> latest() const = 0;

    /// Emitted on the main thread when a reading is complete.
    Signal<> refreshed;
};

}  // namespace tidewatch::platform
