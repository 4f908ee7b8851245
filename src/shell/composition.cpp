#include "shell/composition.h"

#include <utility>

namespace tidewatch {

Composition::Composition(const platform::Platform& platform, std::function<void()> terminate)
    : services_(platform),
      theme_(themes_, services_.settings, services_.broadcaster),
      clock_(services_.engine, theme_, platform.clock, [this] { return services_.rewards.starsToday(); }),
      surfaces_(platform, theme_, clock_),
      delegate_({
          .platform = platform,
          .services = services_,
          .themes = themes_,
          .theme = theme_,
          .surfaces = surfaces_,
          .statistics = nullptr,
          .terminate = std::move(terminate),
      }) {}

}  // namespace tidewatch
