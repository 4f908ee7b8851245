#pragma once

#include <string_view>

#include "platform/api/running_applications.h"

namespace tidewatch {

/// Asks each running application that has exactly this name, or whose process has it, to close: first those
/// that the desktop does not know, then the others. A process without a window is not reached. Returns
/// whether any was asked.
bool quitApplications(platform::RunningApplications& running, std::string_view name);

}  // namespace tidewatch
