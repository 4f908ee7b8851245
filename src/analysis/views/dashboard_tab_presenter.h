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
    /// What the tab will show, as long as the record is empty; then an empty text.
    Q_PROPERTY(QString preview READ preview NOTIFY previewChanged FINAL)

public:
    /// `model` must outlive it.
    explicit DashboardTabPresenter(DashboardModel& model, QString preview = {});

    [[nodiscard]] QString preview() const { return isRecordEmpty_ ? preview_ : QString(); }

Q_SIGNALS:
    void previewChanged();

protected:
    [[nodiscard]] DashboardModel& model() const { return model_; }

private:
    DashboardModel& model_;
    const QString preview_;
    bool isRecordEmpty_ = false;
    Connection modelChanged_;
};

}  // namespace tidewatch
