#pragma once

#include <functional>
#include <memory>

#include "platform/api/platform.h"

namespace tidewatch::platform {

/// Sets the process up. To be called before the toolkit's application object is made: in a Wayland session the program runs as an
/// X11 client, since there alone it can place its clock and see the application in front.
void prepareEnvironment();

/// Every operation of the seam on a Linux desktop. The toolkit's application object must exist as long as
/// this object. Main thread only.
class NativePlatform final {
public:
    NativePlatform();
    ~NativePlatform();

    [[nodiscard]] const Platform& platform() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace tidewatch::platform
