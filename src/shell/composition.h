#pragma once

#include <functional>

#include "core/app_usage_store.h"
#include "core/broadcaster.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/hourly_store.h"
#include "core/idle_monitor.h"
#include "core/minute_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/api/platform.h"
#include "shell/app_delegate.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/views/clock_presenter.h"
#include "shell/windows/qt_surfaces.h"

namespace tidewatch {

/// Every store and service, built once, in the order in which they need each other. Main thread only.
class Composition final {
public:
    /// `platform` must outlive this object; `terminate` ends the program in the ordinary way.
    Composition(const platform::Platform& platform, std::function<void()> terminate);

    [[nodiscard]] AppDelegate& delegate() { return delegate_; }

private:
    Broadcaster broadcaster_;
    Settings settings_;
    DayRule dayRule_;
    IdleMonitor idleMonitor_;
    DailyStore days_;
    AppUsageStore apps_;
    ClockKeys keys_;
    HourlyStore hours_;
    MinuteStore minutes_;
    TimerEngine engine_;
    ThemeRegistry themes_;
    ThemeController theme_;
    ClockPresenter clock_;
    QtSurfaces surfaces_;
    AppDelegate delegate_;
};

}  // namespace tidewatch
