#pragma once

#include <functional>

#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/services.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/views/clock_presenter.h"
#include "shell/windows/qt_surfaces.h"

namespace tidewatch {

/// The program as a whole, built once. Main thread only.
class Composition final {
public:
    /// `platform` must outlive this object; `terminate` ends the program in the ordinary way.
    Composition(const platform::Platform& platform, std::function<void()> terminate);

    [[nodiscard]] AppDelegate& delegate() { return delegate_; }

private:
    Services services_;
    ThemeRegistry themes_;
    ThemeController theme_;
    ClockPresenter clock_;
    QtSurfaces surfaces_;
    AppDelegate delegate_;
};

}  // namespace tidewatch
