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
          .widgetContent = [this](WidgetKind kind) { return widgets().content(kind); },
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

WidgetViews& DesktopComposition::widgets() {
    if (!widgets_) {
        widgets_ = std::make_unique<WidgetViews>(
            services_.widgets.hub, gamesSources(platform_, services_, keys_),
            [this](QObject& presenter) { return surfaces_.makeView("WidgetContainer", presenter); },
            [this] {
                surfaces_.clearViewCache();
                platform_.memory.releaseUnused();
            });
    }
    return *widgets_;
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
    auto& dialogs = surfaces_.dialogs();
    return std::make_unique<Statistics>(
        platform_, services_, keys_,
        Statistics::Commands{
            .dashboard = {
                .exportReport = [this] { program_.exports().exportReport(); },
                .reclassify =
                    [this](DashboardModel& model, const AppId& app, QPointF at) {
                        surfaces_.popUpMenu(reclassifyMenu(app, services_.classification.categories, model),
                                            {at.x(), at.y()});
                    },
            },
            .system = {
                .confirm =
                    [&dialogs](const SystemQuestion& question, std::function<void()> accepted) {
                        dialogs.confirm({.title = {question.title},
                                         .text = {"", question.name, question.afterName},
                                         .accept = question.accept},
                                        std::move(accepted));
                    },
                .warn = [&dialogs](const std::string& title,
                                   const std::string& text) { dialogs.warn(title, text); },
            },
        });
}

}  // namespace tidewatch
