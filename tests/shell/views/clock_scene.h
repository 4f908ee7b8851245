#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <chrono>
#include <memory>

#include "core/broadcaster.h"
#include "core/settings.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/views/clock_presenter.h"
#include "tests/support/core_fixture.h"
#include "tests/support/fake_world.h"

namespace tidewatch {

/// The floating clock's models on a fake machine: an editor in front, nothing booked yet.
class ClockWorld {
public:
    ClockWorld();

    /// Restarts with this total for the day.
    void startAt(Seconds today);

    /// Lets the engine tick for this long.
    void runFor(std::chrono::milliseconds duration) { machine_.mainLoop.runFor(duration); }

    test::FakeWorld machine_;
    Settings settings_{machine_.preferences};
    Broadcaster broadcaster_;
    ThemeRegistry themes_;
    ThemeController theme_{themes_, settings_, broadcaster_};
    int stars_ = 0;
    std::unique_ptr<test::CoreFixture> fixture_ = std::make_unique<test::CoreFixture>(machine_);
    std::unique_ptr<ClockPresenter> presenter_;
};

/// The clock's view on such a world, in a software-rendered window.
class ClockScene : public ClockWorld {
public:
    ClockScene();
    virtual ~ClockScene();

    /// Recreates the view, `scale` times the theme's size, in a window larger by `margin` pixels on each
    /// side.
    void show(double scale, int margin = 0);

    /// The view's item with this objectName, or null.
    [[nodiscard]] QQuickItem* item(const QString& name) const;

    /// A picture of the window, which is opaque off screen.
    [[nodiscard]] QImage picture();

    QQmlEngine engineOfViews_;
    QQuickWindow window_;
    std::unique_ptr<QQuickItem> view_;
    QStringList viewWarnings_;
};

}  // namespace tidewatch
