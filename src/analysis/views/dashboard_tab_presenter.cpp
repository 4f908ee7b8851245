#include "analysis/views/dashboard_tab_presenter.h"

namespace tidewatch {

DashboardTabPresenter::DashboardTabPresenter(DashboardModel& model)
    : model_(model), modelChanged_(model.changed.connect([this](DashboardModel::Field field) {
          // The last assignment of a reload: update once for all of them.
          if (field == DashboardModel::Field::avg7Score) updateIfVisible();
      })) {}

}  // namespace tidewatch
