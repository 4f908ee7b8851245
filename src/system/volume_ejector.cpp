#include "system/volume_ejector.h"

#include <utility>

namespace tidewatch {

void VolumeEjector::eject(const std::string& mountPoint, Done done) {
    if (!ejecting_.insert(mountPoint).second) return;
    changed.emit();
    dependencies_.ejection.eject(
        mountPoint, [this, alive = std::weak_ptr(alive_), mountPoint,
                     done = std::move(done)](const std::optional<platform::EjectionError>& error) {
            if (alive.expired()) return;
            ejecting_.erase(mountPoint);
            if (error)
                dependencies_.log.warning("Tidewatch: failed to eject " + mountPoint + ": " + error->message);
            // Otherwise it would stay in the list for a while.
            dependencies_.volumes.refresh();
            changed.emit();
            done(error);
        });
}

}  // namespace tidewatch
