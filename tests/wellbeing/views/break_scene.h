#pragma once

#include "core/day_rule.h"
#include "tests/support/fake_world.h"
#include "ui/ui_scene.h"
#include "wellbeing/break_reminder.h"
#include "wellbeing/recording_notifier.h"
#include "wellbeing/views/break_presenter.h"

namespace tidewatch {

/// A break reminder on a fake machine, and its presenter.
class BreakWorld {
public:
    /// Ticks active seconds, each with the same total of the day.
    void sit(Seconds seconds, Seconds totalToday = Seconds(0));

    /// Ticks until an alert is raised, on a normal day or on a long one of this many hours.
    void sitUntilAlert();
    void sitUntilAlert(int hoursOfDay);

    test::FakeWorld machine_;
    Settings settingsOfDay_{machine_.preferences};
    DayRule dayRule_{machine_.clock, settingsOfDay_};
    test::RecordingNotifier notifier_;
    BreakReminder reminder_{dayRule_, machine_.mainLoop, notifier_};
    BreakPresenter presenter_{reminder_};
};

/// The alert's view over a window with a button and a scroll pane, in any theme.
class BreakScene : public BreakWorld, public UiScene {
public:
    /// Recreates the window.
    void showWindow(QSize size = {900, 620});
};

}  // namespace tidewatch
