#pragma once

#include "analysis/dashboard_model.h"
#include "base/tagged_string.h"
#include "classification/category_store.h"
#include "shell/menu_row.h"

namespace tidewatch {

/// The menu that says what an application is and what that counts as, as it stands at this moment. A choice
/// is followed by a reload of `model`. Both must outlive the rows.
[[nodiscard]] MenuRows reclassifyMenu(const AppId& app, CategoryStore& categories, DashboardModel& model);

}  // namespace tidewatch
