#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "base/signal.h"

namespace tidewatch {

/// Another theme was chosen.
struct ThemeChanged {
    static constexpr std::string_view name = "Tidewatch.themeChanged";
};

/// Another size of the floating clock was chosen.
struct SizeChanged {
    static constexpr std::string_view name = "Tidewatch.sizeChanged";
};

/// The list of projects, one of them, or which one is active has changed.
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

/// Carries the events in answer to which something is done elsewhere, by whom the poster does not know.
/// What only shows a model follows the model's own Signal instead. Main thread only.
/// Observers are called inside post(), in the order in which they began to observe. One that must not run
/// inside the poster hands its work to the MainLoop.
class Broadcaster final {
public:
    template <class Event>
    void post(const Event& event) const {
        std::get<Signal<const Event&>>(signals_).emit(event);
    }

    /// Calls `observer` at each posting until the connection ends.
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
