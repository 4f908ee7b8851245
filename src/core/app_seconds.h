#pragma once

#include "base/named_string.h"
#include "base/seconds.h"

namespace tidewatch {

/// What one application got.
struct AppSeconds {
    AppId app;
    Seconds seconds;
    bool operator==(const AppSeconds&) const = default;
};

}  // namespace tidewatch
