#pragma once

#include "core/day_rule.h"
#include "tests/support/fake_world.h"
#include "ui/ui_scene.h"
#include "wellbeing/break_reminder.h"
#include "wellbeing/recording_notifier.h"
#include "wellbeing/views/break_presenter.h"

namespace tidewatch {

/// A reminder on a fake machine, and what its alert shows.
class BreakWorld {
public:
    /// Active seconds, each with the same total of the day.
    void sit(Seconds seconds, Seconds totalToday = Seconds(0));

    /// Sits until an alert comes up, on a day of ordinary length or on a long one of so many hours.
    void sitUntilAlert();
    void sitUntilAlert(int hoursOfDay);

    test::FakeWorld machine_;
    Settings settingsOfDay_{machine_.preferences};
    DayRule dayRule_{machine_.clock, settingsOfDay_};
    test::RecordingNotifier notifier_;
    BreakReminder reminder_{dayRule_, machine_.mainLoop, notifier_};
    BreakPresenter presenter_{reminder_};
};

/// The alert's view over a window with a button and a pane that scrolls, in any theme.
class BreakScene : public BreakWorld, public UiScene {
public:
    /// Makes the window anew.
    void showWindow(QSize size = {900, 620});
};

}  // namespace tidewatch
