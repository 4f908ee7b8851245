#pragma once

#include <qqmlregistration.h>

#include "analysis/dashboard_model.h"
#include "base/signal.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// A tab of the dashboard's model, updated after each of its reloads. Main thread only.
class DashboardTabPresenter : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the dashboard's tabs are")

public:
    /// `model` must outlive it.
    explicit DashboardTabPresenter(DashboardModel& model);

protected:
    [[nodiscard]] DashboardModel& model() const { return model_; }

private:
    DashboardModel& model_;
    Connection modelChanged_;
};

}  // namespace tidewatch
