#include "analysis/views/dashboard_tab_presenter.h"

#include <utility>

namespace tidewatch {

DashboardTabPresenter::DashboardTabPresenter(DashboardModel& model, QString preview)
    : model_(model),
      preview_(std::move(preview)),
      isRecordEmpty_(model.isRecordEmpty()),
      modelChanged_(model.changed.connect([this](DashboardModel::Field field) {
          // The last assignment of a reload: update once for all of them.
          if (field != DashboardModel::Field::avg7Score) return;
          change(this, isRecordEmpty_, model_.isRecordEmpty(), &DashboardTabPresenter::previewChanged);
          updateIfVisible();
      })) {}

}  // namespace tidewatch
