#include "shell/composition.h"

#include <utility>

namespace tidewatch {

Composition::Composition(const platform::Platform& platform, std::function<void()> terminate)
    : settings_(platform.preferences),
      dayRule_(platform.clock, settings_),
      idleMonitor_(platform.inputActivity),
      days_(platform.files, platform.log, dayRule_),
      apps_(platform.files, platform.log, platform.workspace),
      keys_(platform.clock, settings_, dayRule_),
      hours_(platform.files, platform.log, platform.workspace),
      minutes_(platform.files, platform.log, platform.workspace),
      engine_(platform.clock, platform.mainLoop, settings_, idleMonitor_, keys_,
              {days_, apps_, hours_, minutes_}, TickListeners{}),
      theme_(themes_, settings_, broadcaster_),
      clock_(engine_, theme_, platform.clock, [] { return 0; }),
      surfaces_(platform.windowManager, theme_, clock_),
      delegate_({
          .platform = platform,
          .broadcaster = broadcaster_,
          .settings = settings_,
          .days = days_,
          .apps = apps_,
          .engine = engine_,
          .themes = themes_,
          .theme = theme_,
          .surfaces = surfaces_,
          .statistics = nullptr,
          .terminate = std::move(terminate),
      }) {}

}  // namespace tidewatch
