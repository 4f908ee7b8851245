#include "app/desktop/statistics_sources.h"

namespace tidewatch {

StatsPresenter::Sources statisticsSources(const platform::Platform& platform, Services& services) {
    return {
        .clock = platform.clock,
        .mainLoop = platform.mainLoop,
        .broadcaster = services.broadcaster,
        .counters = services.counting.stores(),
        .keys = services.counting.keys,
        .categories = services.classification.categories,
        .scorer = services.classification.scorer,
        .appInfo = services.classification.appInfo,
        .projects = services.projects.store,
        .projectTime = services.projects.times,
        .goals = services.goals.store,
        .goalEvaluator = services.goals.evaluator,
        .rewards = services.goals.rewards,
        .breakReminder = services.wellbeing.breakReminder,
    };
}

}  // namespace tidewatch
