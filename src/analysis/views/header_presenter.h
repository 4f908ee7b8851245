#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "analysis/dashboard_model.h"
#include "analysis/insights_engine.h"

namespace tidewatch {

/// The header of the statistics window with the selected day. Main thread only.
class HeaderPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString brand READ brand CONSTANT FINAL)
    Q_PROPERTY(QString tagline READ tagline CONSTANT FINAL)
    Q_PROPERTY(QString date READ date NOTIFY dateChanged FINAL)
    /// Whether there is a day after the selected one.
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY dateChanged FINAL)

public:
    /// Both must outlive it.
    HeaderPresenter(DashboardModel& model, const InsightsEngine& dates);

    [[nodiscard]] QString brand() const;
    [[nodiscard]] QString tagline() const;
    [[nodiscard]] QString date() const { return date_; }
    [[nodiscard]] bool canGoForward() const { return canGoForward_; }

    Q_INVOKABLE void previousDay();
    Q_INVOKABLE void nextDay();
    Q_INVOKABLE void today();

Q_SIGNALS:
    void dateChanged();

private:
    void update();

    DashboardModel& model_;
    const InsightsEngine& dates_;
    QString date_;
    bool canGoForward_ = false;
    Connection modelChanged_;
};

}  // namespace tidewatch
