#pragma once

#include "base/seconds.h"
#include "base/tagged_string.h"

namespace tidewatch {

/// What one application got.
struct AppSeconds {
    AppId app;
    Seconds seconds;
    bool operator==(const AppSeconds&) const = default;
};

}  // namespace tidewatch
