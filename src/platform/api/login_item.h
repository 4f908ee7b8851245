#pragma once

#include "base/result.h"

namespace tidewatch::platform {

/// Whether the program starts with the user's session. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;
    virtual Status registerItem() = 0;
    virtual Status unregisterItem() = 0;
};

}  // namespace tidewatch::platform
