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

/// What the floating clock stands on, on a fake machine: an editor in front, nothing booked yet.
class ClockWorld {
public:
    ClockWorld();

    /// Starts the program anew with this total for the day, as if it had been booked before.
    void startAt(Seconds today);

    /// Lets the engine tick for so long.
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

/// The clock's view on such a world, in a window of the software scene graph.
class ClockScene : public ClockWorld {
public:
    ClockScene();
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
