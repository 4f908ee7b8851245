#pragma once

#include <functional>
#include <string>

#include "app/services.h"
#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/export_commands.h"
#include "shell/project_commands.h"
#include "shell/status_commands.h"
#include "shell/status_menu.h"
#include "shell/status_title.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// What the program does on a screen, wired: the delegate, the commands, and what the status item and its
/// menu say. Main thread only.
class Program final {
public:
    /// What the program is shown on; all of it must outlive the program.
    struct Screen {
        Surfaces& surfaces;
        StatisticsWindow& statistics;
        /// Writes the report of the month; false if it could not be written.
        std::function<bool(const std::string& path)> generateReport;
        /// Ends the program in the ordinary way.
        std::function<void()> terminate;
    };

    /// `platform` and `services` must outlive the program.
    Program(const platform::Platform& platform, Services& services, const Screen& screen);

    [[nodiscard]] AppDelegate& delegate() { return delegate_; }
    [[nodiscard]] ExportCommands& exports() { return exports_; }

private:
    [[nodiscard]] StatusTitle statusTitle() const;
    [[nodiscard]] MenuGroups makeMenu(const platform::Platform& platform);

    Services& services_;
    ExportCommands exports_;
    ProjectCommands projectCommands_;
    AppDelegate delegate_;
    StatusCommands commands_;
    MenuGroups menu_;
};

}  // namespace tidewatch
