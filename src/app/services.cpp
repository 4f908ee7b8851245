#include "app/services.h"

#include "platform/api/job_queue_factory.h"

namespace tidewatch {

Services::Services(const platform::Platform& platform)
    : counting({
          .clock = platform.clock,
          .files = platform.files,
          .log = platform.log,
          .preferences = platform.preferences,
          .inputActivity = platform.inputActivity,
          .frontmost = platform.frontmost,
      }),
      classification({
          .files = platform.files,
          .log = platform.log,
          .applications = platform.applications,
          .apps = counting.apps,
      }),
      projects({
          .files = platform.files,
          .log = platform.log,
          .randomness = platform.randomness,
          .frontmost = platform.frontmost,
          .broadcaster = broadcaster,
      }),
      goals({
          .clock = platform.clock,
          .files = platform.files,
          .log = platform.log,
          .days = counting.days,
          .scorer = classification.scorer,
      }),
      wellbeing({
          .clock = platform.clock,
          .mainLoop = platform.mainLoop,
          .preferences = platform.preferences,
          .log = platform.log,
          .service = platform.notifications,
          .dayRule = counting.dayRule,
          .days = counting.days,
          .goals = goals.store,
      }),
      claude({
          .clock = platform.clock,
          .mainLoop = platform.mainLoop,
          .files = platform.files,
          .log = platform.log,
          .queues = platform.queues,
          .preferences = platform.preferences,
      }),
      machine({
          .clock = platform.clock,
          .mainLoop = platform.mainLoop,
          .files = platform.files,
          .log = platform.log,
          .randomness = platform.randomness,
          .queues = platform.queues,
          .counters = platform.counters,
          .volumes = platform.volumes,
          .ejection = platform.ejection,
          .running = platform.running,
          .http = platform.http,
          .userFolders = platform.userFolders,
          .desktop = platform.desktop,
          .trash = platform.trash,
      }),
      widgets({
          .files = platform.files,
          .log = platform.log,
          .hub =
              {
                  .mainLoop = platform.mainLoop,
                  .days = counting.days,
                  .apps = counting.apps,
                  .hours = counting.hours,
                  .minutes = counting.minutes,
                  .categories = classification.categories,
                  .scorer = classification.scorer,
                  .appInfo = classification.appInfo,
                  .goals = goals.evaluator,
                  .rewards = goals.rewards,
                  .projects = projects.store,
                  .projectTime = projects.times,
                  .monitor =
                      {
                          .clock = platform.clock,
                          .mainLoop = platform.mainLoop,
                          .counters = platform.counters,
                          .volumes = platform.volumes,
                          .randomness = platform.randomness,
                      },
                  .speed =
                      {
                          .clock = platform.clock,
                          .mainLoop = platform.mainLoop,
                          .counters = platform.counters,
                          .http = platform.http,
                      },
              },
      }),
      smallFiles(projects.store, classification.categories, goals.store, widgets.store),
      disk(platform.queues.makeQueue("record")),
      engine(platform.clock, platform.mainLoop, counting.settings, counting.idleMonitor, counting.keys,
             counting.stores(), *disk,
             {&wellbeing.gameGate, &wellbeing.breakReminder, &projects.booking, &smallFiles}),
      theme(themes, counting.settings, broadcaster) {}

}  // namespace tidewatch
