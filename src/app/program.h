#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/services.h"
#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/export_commands.h"
#include "shell/floating_clock.h"
#include "shell/project_commands.h"
#include "shell/record_writer.h"
#include "shell/status_bar.h"
#include "shell/status_commands.h"
#include "shell/status_menu.h"
#include "shell/status_title.h"
#include "shell/surfaces.h"
#include "shell/widgets/widget_manager.h"

namespace tidewatch {

/// Wires the clock, the status item and its menu, the delegate and the commands. Main thread only.
class Program final {
public:
    /// The surfaces of the program; all of it must outlive the program.
    struct Screen {
        Surfaces& surfaces;
        StatisticsWindow& statistics;
        /// Writes the monthly report; returns false on failure.
        std::function<bool(const std::string& path)> generateReport;
        /// Ends the program regularly.
        std::function<void()> terminate;
    };

    /// `platform` and `services` must outlive the program.
    Program(const platform::Platform& platform, Services& services, const Screen& screen);

    [[nodiscard]] AppDelegate& delegate() { return delegate_; }
    [[nodiscard]] ExportCommands& exports() { return exports_; }

private:
    [[nodiscard]] StatusTitle statusTitle() const;
    /// Builds the manager on first use: it observes after the delegate.
    [[nodiscard]] WidgetManager& widgets();
    [[nodiscard]] MenuGroups makeMenu(const platform::Platform& platform);

    Services& services_;
    ExportCommands exports_;
    ProjectCommands projectCommands_;
    RecordWriter record_;
    StatusBar statusBar_;
    FloatingClock clock_;
    const WidgetManager::Dependencies widgetDependencies_;
    std::optional<WidgetManager> widgets_;
    AppDelegate delegate_;
    StatusCommands commands_;
    MenuGroups menu_;
};

}  // namespace tidewatch
