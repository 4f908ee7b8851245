#pragma once

#include "app/services.h"
#include "platform/api/platform.h"
#include "shell/views/stats_presenter.h"

namespace tidewatch {

/// The sources of the statistics window.
[[nodiscard]] StatsPresenter::Sources statisticsSources(const platform::Platform& platform,
                                                        Services& services);

}  // namespace tidewatch
