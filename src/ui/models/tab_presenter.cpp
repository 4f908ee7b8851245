#include "ui/models/tab_presenter.h"

namespace tidewatch {

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
