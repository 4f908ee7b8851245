#pragma once

#include <map>
#include <memory>
#include <string>

#include "core/broadcaster.h"
#include "platform/api/main_loop.h"
#include "shell/surfaces.h"
#include "shell/widgets/widget_hub.h"
#include "shell/widgets/widget_window.h"

namespace tidewatch {

/// Shows and hides the widgets, persistently, and opens the statistics when one is clicked. Their windows
/// follow the theme by themselves. Main thread only.
class WidgetManager final {
public:
    /// All of it must outlive the manager.
    struct Dependencies {
        WidgetHub& hub;
        platform::MainLoop& mainLoop;
        Broadcaster& broadcaster;
        StatisticsWindow& statistics;
        WidgetWindow::Dependencies windows;
    };

    explicit WidgetManager(Dependencies dependencies);

    /// Shows the widgets that were visible when the program last ended. Called once, at launch.
    void restoreVisible();

    /// Brings one that is already shown to the front of its layer.
    void show(WidgetKind kind);
    void hide(WidgetKind kind);
    void toggle(WidgetKind kind);
    [[nodiscard]] bool isVisible(WidgetKind kind) const { return windows_.contains(kind); }

private:
    void open(WidgetKind kind);
    void setVisible(WidgetKind kind, bool visible);
    void widgetClicked(const std::string& kind);

    const Dependencies dependencies_;
    std::map<WidgetKind, WidgetWindow> windows_;  ///< of the widgets that are shown
    Connection clicks_;
    /// Expires with this object, for posted jobs.
    std::shared_ptr<WidgetManager*> self_ = std::make_shared<WidgetManager*>(this);
};

}  // namespace tidewatch
