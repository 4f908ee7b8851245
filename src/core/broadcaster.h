#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "base/signal.h"

namespace tidewatch {

/// The active theme has changed.
struct ThemeChanged {
    static constexpr std::string_view name = "Tidewatch.themeChanged";
};

/// The size of the floating clock has changed.
struct SizeChanged {
    static constexpr std::string_view name = "Tidewatch.sizeChanged";
};

/// A project, the list of projects, or the active project has changed.
struct ProjectsChanged {
    static constexpr std::string_view name = "Tidewatch.projectsChanged";
};

/// The floating clock was clicked, not dragged.
struct FloatingPanelClicked {
    static constexpr std::string_view name = "Tidewatch.floatingPanelClicked";
};

/// A widget was clicked, not dragged.
struct WidgetClicked {
    static constexpr std::string_view name = "Tidewatch.widgetClicked";
    std::string kind;
};

/// The statistics window is about to be shown.
struct DashboardWillShow {
    static constexpr std::string_view name = "Tidewatch.dashboardWillShow";
};

/// Delivers events that trigger actions in objects unknown to the poster. What only displays a model connects
/// to the model's own Signal instead. Main thread only. Observers are called inside post(), in the order of
/// registration. An observer that must not run inside the poster posts its work to the MainLoop.
class Broadcaster final {
public:
    template <class Event>
    void post(const Event& event) const {
        std::get<Signal<const Event&>>(signals_).emit(event);
    }

    /// Calls `observer` for each event until the connection is destroyed.
    template <class Event>
    [[nodiscard]] Connection observe(std::function<void(const Event&)> observer) {
        return std::get<Signal<const Event&>>(signals_).connect(std::move(observer));
    }

private:
    std::tuple<Signal<const ThemeChanged&>, Signal<const SizeChanged&>, Signal<const ProjectsChanged&>,
               Signal<const FloatingPanelClicked&>, Signal<const WidgetClicked&>,
               Signal<const DashboardWillShow&>>
        signals_;
};

}  // namespace tidewatch
