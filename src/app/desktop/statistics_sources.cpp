#include "app/desktop/statistics_sources.h"

namespace tidewatch {

StatsPresenter::Sources statisticsSources(const platform::Platform& platform, Services& services) {
    return {
        .clock = platform.clock,
        .mainLoop = platform.mainLoop,
        .broadcaster = services.broadcaster,
        .counters = services.counters(),
        .keys = services.keys,
        .categories = services.categories,
        .scorer = services.scorer,
        .appInfo = services.appInfo,
        .projects = services.projects,
        .projectTime = services.projectTime,
        .goals = services.goals,
        .goalEvaluator = services.goalEvaluator,
        .rewards = services.rewards,
        .breakReminder = services.breakReminder,
    };
}

}  // namespace tidewatch
