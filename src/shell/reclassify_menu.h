#pragma once

#include "analysis/dashboard_model.h"
#include "base/tagged_string.h"
#include "classification/category_store.h"
#include "shell/menu_row.h"

namespace tidewatch {

/// The menu for an application's category and that category's tier, with the current ones checked. A choice
/// reloads `model`. Both must outlive the rows.
[[nodiscard]] MenuRows reclassifyMenu(const AppId& app, CategoryStore& categories, DashboardModel& model);

}  // namespace tidewatch
