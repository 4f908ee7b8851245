#pragma once

#include "shell/views/widgets/gadget_presenter.h"
#include "shell/widgets/widget_hub.h"

namespace tidewatch {

/// The streak of days, and the insights of the week. Main thread only.
class StreakGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString streak READ streak NOTIFY streakChanged FINAL)
    Q_PROPERTY(QString streakAccessibleText READ streakAccessibleText NOTIFY streakChanged FINAL)
    Q_PROPERTY(QString longest READ longest NOTIFY insightsChanged FINAL)
    Q_PROPERTY(QString longestTitle READ longestTitle CONSTANT FINAL)
    Q_PROPERTY(QString longestAccessibleText READ longestAccessibleText NOTIFY insightsChanged FINAL)
    Q_PROPERTY(QString peakHour READ peakHour NOTIFY insightsChanged FINAL)
    Q_PROPERTY(QString peakHourTitle READ peakHourTitle CONSTANT FINAL)
    Q_PROPERTY(QString total READ total NOTIFY insightsChanged FINAL)
    Q_PROPERTY(QString totalTitle READ totalTitle CONSTANT FINAL)

public:
    /// `hub` must outlive the presenter.
    explicit StreakGadgetPresenter(WidgetHub& hub);

    [[nodiscard]] QString streak() const { return streak_; }
    [[nodiscard]] QString streakAccessibleText() const { return "Racha: " + streak_; }
    /// "—" without a session.
    [[nodiscard]] QString longest() const { return figures_.longest; }
    [[nodiscard]] QString longestTitle() const { return "sesión más larga sin parar"; }
    [[nodiscard]] QString longestAccessibleText() const { return longestTitle() + ": " + longest(); }
    /// "—" without one.
    [[nodiscard]] QString peakHour() const { return figures_.peakHour; }
    [[nodiscard]] QString peakHourTitle() const { return "HORA PICO"; }
    [[nodiscard]] QString total() const { return figures_.total; }
    [[nodiscard]] QString totalTitle() const { return "TOTAL"; }

Q_SIGNALS:
    void streakChanged();
    void insightsChanged();

private:
    struct Figures {
        QString longest;
        QString peakHour;
        QString total;
        bool operator==(const Figures&) const = default;
    };

    void update() override;

    WidgetHub& hub_;
    QString streak_;
    Figures figures_;
};

}  // namespace tidewatch
