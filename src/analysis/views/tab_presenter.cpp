#include "analysis/views/tab_presenter.h"

namespace tidewatch {

TabPresenter::TabPresenter(DashboardModel& model)
    : model_(model), modelChanged_(model.changed.connect([this](DashboardModel::Field field) {
          // The last assignment of a reload stands for all of it.
          if (field == DashboardModel::Field::avg7Score) updateIfOnShow();
      })) {}

void TabPresenter::setOnShow(bool onShow) {
    if (onShow == onShow_) return;
    onShow_ = onShow;
    onShowChanged();
    updateIfOnShow();
}

void TabPresenter::updateIfOnShow() {
    if (onShow_) update();
}

}  // namespace tidewatch
