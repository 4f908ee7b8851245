#include "system/quit_applications.h"

#include <algorithm>

namespace tidewatch {

bool quitApplications(platform::RunningApplications& running, std::string_view name) {
    if (name.empty()) return false;
    auto applications = running.list();
    // Process lists name the executable, the desktop the application.
    std::erase_if(applications, [&](const platform::RunningApplication& application) {
        return application.name != name && application.processName != name;
    });
    std::stable_partition(
        applications.begin(), applications.end(),
        [](const platform::RunningApplication& application) { return application.id.empty(); });
    // Each once: a second request would answer the question that the first one makes an application ask.
    for (const auto& application : applications) running.askToClose(application);
    return !applications.empty();
}

}  // namespace tidewatch
