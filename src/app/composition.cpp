#include "app/composition.h"

#include <utility>

#include "shell/reclassify_menu.h"

namespace tidewatch {

Composition::Composition(const platform::Platform& platform, std::function<void()> terminate)
    : platform_(platform),
      services_(platform),
      theme_(themes_, services_.settings, services_.broadcaster),
      clock_(services_.engine, theme_, platform.clock, [this] { return services_.rewards.starsToday(); }),
      surfaces_(platform, theme_, clock_),
      report_(
          {
              .clock = platform.clock,
              .days = services_.days,
              .apps = services_.apps,
              .appInfo = services_.appInfo,
              .scorer = services_.scorer,
              .goalEvaluator = services_.goalEvaluator,
              .rewards = services_.rewards,
          },
          platform.files, platform.log),
      exports_({
          .services = services_,
          .files = platform.files,
          .desktop = platform.desktop,
          .dialogs = surfaces_.dialogs(),
          .generateReport = [this](const std::string& path) { return report_.generate(path); },
      }),
      statistics_(platform, theme_, services_.broadcaster, statisticsContent()),
      delegate_({
          .platform = platform,
          .services = services_,
          .themes = themes_,
          .theme = theme_,
          .surfaces = surfaces_,
          .statistics = statistics_,
          .exports = exports_,
          .terminate = std::move(terminate),
      }) {}

QuickStatisticsWindow::Content Composition::statisticsContent() {
    return {
        .makeView =
            [this] {
                if (!stats_) stats_ = makeStats();
                return surfaces_.makeView("StatsView", *stats_);
            },
        .disappeared = [this] { stats_->disappear(); },
        .viewDestroyed = [this] { surfaces_.forgetViews(); },
    };
}

std::unique_ptr<StatsPresenter> Composition::makeStats() {
    return std::make_unique<StatsPresenter>(
        platform_, services_,
        StatsPresenter::Commands{
            .exportReport = [this] { exports_.exportReport(); },
            .reclassify =
                [this](DashboardModel& model, const AppId& app, QPointF at) {
                    surfaces_.popUpMenu(reclassifyMenu(app, services_.categories, model), {at.x(), at.y()});
                },
        });
}

}  // namespace tidewatch
