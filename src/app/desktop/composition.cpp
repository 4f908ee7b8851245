#include "app/desktop/composition.h"

#include <utility>

#include "shell/reclassify_menu.h"

namespace tidewatch {

DesktopComposition::DesktopComposition(const platform::Platform& platform, std::function<void()> terminate)
    : platform_(platform),
      services_(platform),
      clock_(services_.engine, services_.theme, platform.clock,
             [this] { return services_.goals.rewards.starsToday(); }),
      surfaces_({
          .log = platform.log,
          .windowSystem = platform.windowSystem,
          .desktop = platform.desktop,
          .theme = services_.theme,
          .clock = clock_,
      }),
      report_(
          {
              .clock = platform.clock,
              .days = services_.counting.days,
              .apps = services_.counting.apps,
              .appInfo = services_.classification.appInfo,
              .scorer = services_.classification.scorer,
              .goalEvaluator = services_.goals.evaluator,
              .rewards = services_.goals.rewards,
          },
          platform.files, platform.log),
      statistics_(
          {
              .windowSystem = platform.windowSystem,
              .screens = platform.screens,
              .memory = platform.memory,
              .theme = services_.theme,
              .broadcaster = services_.broadcaster,
          },
          statisticsContent()),
      program_(platform, services_,
               {
                   .surfaces = surfaces_,
                   .statistics = statistics_,
                   .generateReport = [this](const std::string& path) { return report_.generate(path); },
                   .terminate = std::move(terminate),
               }) {}

GamesPresenter::Sources DesktopComposition::games() {
    return {
        .mainLoop = platform_.mainLoop,
        .preferences = platform_.preferences,
        .randomness = platform_.randomness,
        .keys = keys_,
        .gate = services_.wellbeing.gameGate,
    };
}

QuickStatisticsWindow::Content DesktopComposition::statisticsContent() {
    return {
        .makeView =
            [this] {
                if (!shown_) shown_ = makeStatistics();
                return surfaces_.makeView("StatsView", shown_->presenter());
            },
        .disappeared = [this] { shown_->presenter().disappear(); },
        .viewDestroyed = [this] { surfaces_.clearViewCache(); },
    };
}

std::unique_ptr<Statistics> DesktopComposition::makeStatistics() {
    return std::make_unique<Statistics>(
        platform_, services_,
        Dashboard::Commands{
            .exportReport = [this] { program_.exports().exportReport(); },
            .reclassify =
                [this](DashboardModel& model, const AppId& app, QPointF at) {
                    surfaces_.popUpMenu(reclassifyMenu(app, services_.classification.categories, model),
                                        {at.x(), at.y()});
                },
        });
}

}  // namespace tidewatch
