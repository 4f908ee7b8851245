#include "app/services.h"

#include "platform/api/background.h"

namespace tidewatch {

Services::Services(const platform::Platform& platform)
    : settings(platform.preferences),
      dayRule(platform.clock, settings),
      keys(platform.clock, settings, dayRule),
      idleMonitor(platform.inputActivity),
      days(platform.files, platform.log, dayRule),
      apps(platform.files, platform.log, platform.frontmost),
      hours(platform.files, platform.log, platform.frontmost),
      minutes(platform.files, platform.log, platform.frontmost),
      categories(platform.files, platform.log, platform.applications),
      appInfo(platform.applications),
      scorer(apps, categories),
      projects(platform.files, platform.log, platform.randomness, broadcaster),
      projectTime(platform.files, platform.log, platform.frontmost),
      projectBooking(projects, projectTime),
      goals(platform.files, platform.log),
      goalEvaluator(platform.clock, goals, days, scorer),
      rewards(platform.clock, goals, days, scorer, goalEvaluator),
      notifications(platform.notifications, platform.mainLoop, platform.preferences, platform.log, goals,
                    days),
      gameGate(platform.clock, platform.preferences, notifications),
      breakReminder(dayRule, platform.mainLoop, notifications),
      disk(platform.background.makeQueue("record")),
      engine(platform.clock, platform.mainLoop, settings, idleMonitor, keys, counters(), *disk,
             {&gameGate, &breakReminder, &projectBooking}),
      theme(themes, settings, broadcaster) {}

}  // namespace tidewatch
