#pragma once

#include "shell/widgets/widget_hub.h"
#include "shell/widgets/widget_store.h"

namespace tidewatch {

/// What is stored of the widgets and what they show, built together. Main thread only.
struct DesktopWidgets final {
    /// All of it must outlive the bundle.
    struct Dependencies {
        platform::FileSystem& files;
        platform::Log& log;
        WidgetHub::Dependencies hub;
    };

    explicit DesktopWidgets(const Dependencies& dependencies)
        : store(dependencies.files, dependencies.log), hub(dependencies.hub) {}

    WidgetStore store;
    WidgetHub hub;
};

}  // namespace tidewatch
