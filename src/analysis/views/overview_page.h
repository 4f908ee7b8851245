#pragma once

#include <qqmlregistration.h>

#include "analysis/views/insights_presenter.h"
#include "analysis/views/overview_presenter.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The first tab: the overview of the day, and the insights below it. Main thread only.
class OverviewPage final : public TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the dashboard")
    Q_PROPERTY(tidewatch::OverviewPresenter* overview READ overview CONSTANT FINAL)
    Q_PROPERTY(tidewatch::InsightsPresenter* insights READ insights CONSTANT FINAL)

public:
    /// Both must outlive it.
    OverviewPage(OverviewPresenter& overview, InsightsPresenter& insights)
        : overview_(overview), insights_(insights) {}

    [[nodiscard]] OverviewPresenter* overview() { return &overview_; }
    [[nodiscard]] InsightsPresenter* insights() { return &insights_; }

protected:
    void update() override {}
    void visibilityChanged() override {
        overview_.setVisible(isVisible());
        insights_.setVisible(isVisible());
    }

private:
    OverviewPresenter& overview_;
    InsightsPresenter& insights_;
};

}  // namespace tidewatch
