#pragma once

#include "base/seconds.h"
#include "base/tagged_string.h"

namespace tidewatch {

/// One application's seconds.
struct AppSeconds {
    AppId app;
    Seconds seconds;
    bool operator==(const AppSeconds&) const = default;
};

}  // namespace tidewatch
