#include "ui/models/tab_presenter.h"

namespace tidewatch {

void TabPresenter::setVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    visibilityChanged();
    updateIfVisible();
}

void TabPresenter::updateIfVisible() {
    if (visible_) update();
}

void setPaneVisible(const Pane& pane, bool visible) {
    if (auto* presenter = qobject_cast<TabPresenter*>(pane.presenter)) presenter->setVisible(visible);
}

}  // namespace tidewatch
