#pragma once

#include "app/services.h"
#include "platform/api/platform.h"
#include "shell/views/stats_presenter.h"

namespace tidewatch {

/// What the statistics window shows of the services.
[[nodiscard]] StatsPresenter::Sources statisticsSources(const platform::Platform& platform,
                                                        Services& services);

}  // namespace tidewatch
