#pragma once

#include <memory>

#include "platform/api/platform.h"

namespace tidewatch::platform {

class ProcessEnvironment;

/// Every operation of the seam on a Linux desktop. The toolkit's application object must exist as long as
/// this object, and `environment` must outlive it. Main thread only.
class NativePlatform final {
public:
    explicit NativePlatform(const ProcessEnvironment& environment);
    ~NativePlatform();

    [[nodiscard]] const Platform& platform() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace tidewatch::platform
