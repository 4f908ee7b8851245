#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tidewatch::platform {

/// Why a volume was not ejected, in categories that a user can act on.
enum class EjectionErrorKind {
    inUse,         ///< a program has files open on it
    noPermission,  ///< the user may not, or has not confirmed it
    noService,     ///< nothing on this machine ejects volumes
    other,
};

struct EjectionError {
    EjectionErrorKind kind;
    std::string message;  ///< for the log
};

/// Makes volumes safe to unplug. Main thread only.
class VolumeEjection {
public:
    virtual ~VolumeEjection() = default;

    /// Unmounts what is mounted at `mountPoint` and switches its device off, unless another volume of the
    /// device is still mounted. Asynchronous, and takes as long as there are data to write; calls `done`
    /// later with nullopt on success.
    virtual void eject(const std::string& mountPoint,
                       std::function<void(const std::optional<EjectionError>& error)> done) = 0;
};

}  // namespace tidewatch::platform
