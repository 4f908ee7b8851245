#pragma once

#include <optional>

#include "base/tagged_string.h"
#include "platform/api/frontmost_application.h"

namespace tidewatch {

/// The frontmost application, if a second may be booked to it. Returns nullopt if there is none, if it has no
/// identifier, or if it is this program itself. Main thread only.
[[nodiscard]] std::optional<AppId> bookableApplication(platform::FrontmostApplication& frontmost);

}  // namespace tidewatch
