#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "analysis/dashboard_model.h"

namespace tidewatch {

/// What the presenters of the tabs share: each follows the model only while its tab is on show, so that a
/// refresh costs what can be seen. Main thread only.
class TabPresenter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("What the presenters of the tabs are")

public:
    /// `model` must outlive it.
    explicit TabPresenter(DashboardModel& model);

    /// Whether the tab is on show; false at first. One that comes on show catches up at once.
    void setOnShow(bool onShow);
    [[nodiscard]] bool isOnShow() const { return onShow_; }

protected:
    [[nodiscard]] DashboardModel& model() const { return model_; }

    /// Takes up all that the model says; called after each reload.
    virtual void update() = 0;

    /// The tab has come on show, or has gone.
    virtual void onShowChanged() {}

    /// Gives `value` to `field` and announces it, if it differs.
    template <class Presenter, class Value>
    static void change(Presenter* presenter, Value& field, const Value& value, void (Presenter::*changed)()) {
        if (field == value) return;
        field = value;
        Q_EMIT(presenter->*changed)();
    }

    void updateIfOnShow();

private:
    DashboardModel& model_;
    bool onShow_ = false;
    Connection modelChanged_;
};

}  // namespace tidewatch
