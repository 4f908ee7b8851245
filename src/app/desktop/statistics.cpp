#include "app/desktop/statistics.h"

#include <utility>

namespace tidewatch {

Statistics::Statistics(const platform::Platform& platform, Services& services, KeyMonitor& keys,
                       Commands commands)
    : dashboard_(
          {
              .model =
                  {
                      .clock = platform.clock,
                      .mainLoop = platform.mainLoop,
                      .days = services.counting.days,
                      .apps = services.counting.apps,
                      .hours = services.counting.hours,
                      .minutes = services.counting.minutes,
                      .keys = services.counting.keys,
                      .categories = services.classification.categories,
                      .scorer = services.classification.scorer,
                      .projects = services.projects.store,
                      .projectTime = services.projects.times,
                      .appInfo = services.classification.appInfo,
                  },
              .goals = services.goals.store,
              .goalEvaluator = services.goals.evaluator,
              .rewards = services.goals.rewards,
          },
          std::move(commands.dashboard)),
      claude_(platform.clock, platform.mainLoop, services.claude),
      games_(gamesSources(platform, services, keys)),
      system_(platform.clock, services.machine, std::move(commands.system), inSidebar()),
      presenter_({
          .clock = platform.clock,
          .broadcaster = services.broadcaster,
          .counters = services.counting.stores(),
          .breakReminder = services.wellbeing.breakReminder,
          .dashboard = dashboard_,
          .claude = services.claude.monitor,
          .machine = system_.watch(),
          .tabs = tabs(),
          .besideTabs = {system_.sidebar()},
      }) {}

std::vector<Pane> Statistics::tabs() {
    std::vector<Pane> all;
    for (const auto& room : {dashboard_.tabs(), system_.tabs(), claude_.tabs()})
        all.insert(all.end(), room.begin(), room.end());
    return all;
}

std::vector<Pane> Statistics::inSidebar() {
    return {claude_.card(),
            {.id = "games",
             .title = games_.accessibleText(),
             .view = viewUrl("Tidewatch.Wellbeing", "GamesCard"),
             .presenter = &games_}};
}

GamesPresenter::Sources gamesSources(const platform::Platform& platform, Services& services,
                                     KeyMonitor& keys) {
    return {
        .mainLoop = platform.mainLoop,
        .preferences = platform.preferences,
        .randomness = platform.randomness,
        .keys = keys,
        .gate = services.wellbeing.gameGate,
    };
}

}  // namespace tidewatch
