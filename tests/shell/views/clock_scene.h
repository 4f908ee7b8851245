#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "core/app_usage_store.h"
#include "core/broadcaster.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/idle_monitor.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/fake/fake_machine.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/views/clock_presenter.h"

namespace tidewatch {

/// What the floating clock stands on, on a fake machine: 2026-01-15 09:00 UTC, an editor in front, nothing
/// booked yet.
class ClockWorld {
public:
    explicit ClockWorld(std::function<void(const std::string&)> complain);

    /// Puts the day's total to this, as if it had been booked before.
    void startAt(Seconds today);

    /// Lets the engine tick for so long.
    void runFor(std::chrono::milliseconds duration) { machine_.mainLoop.runFor(duration); }

    platform::FakeMachine machine_;
    Broadcaster broadcaster_;
    Settings settings_{machine_.preferences};
    DayRule dayRule_{machine_.clock, settings_};
    IdleMonitor idleMonitor_{machine_.inputActivity};
    DailyStore days_{machine_.files, machine_.log, dayRule_};
    AppUsageStore apps_{machine_.files, machine_.log, machine_.workspace};
    ThemeRegistry themes_;
    ThemeController theme_{themes_, settings_, broadcaster_};
    int stars_ = 0;
    std::unique_ptr<TimerEngine> engine_;
    std::unique_ptr<ClockPresenter> presenter_;
};

/// The clock's view on such a world, in a window of the software scene graph.
class ClockScene : public ClockWorld {
public:
    explicit ClockScene(std::function<void(const std::string&)> complain);
    virtual ~ClockScene();

    /// Makes the view anew, `scale` times the theme's size, in a window larger by `margin` pixels on each
    /// side.
    void show(double scale, int margin = 0);

    /// The item of the view of this name; nothing if there is none.
    [[nodiscard]] QQuickItem* item(const QString& name) const;

    /// What the window shows; nothing of this is translucent on a screen that is only in memory.
    [[nodiscard]] QImage picture();

    QQmlEngine engineOfViews_;
    QQuickWindow window_;
    std::unique_ptr<QQuickItem> view_;
    QStringList viewWarnings_;
};

}  // namespace tidewatch
