#pragma once

#include <memory>

#include "platform/api/platform.h"

namespace tidewatch::platform {

class ProcessEnvironment;

/// The platform on a Linux desktop. The toolkit's application object and `environment` must outlive this
/// object. Main thread only.
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
