#pragma once

#include <QColor>
#include <QList>
#include <QStringList>

#include "shell/views/widgets/gadget_presenter.h"
#include "shell/widgets/widget_hub.h"

namespace tidewatch {

/// Streak, stars and the goal of today. Main thread only.
class GoalsGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString streak READ streak NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString streakAccessibleText READ streakAccessibleText NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QStringList stars READ stars NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QList<QColor> starColors READ starColors CONSTANT FINAL)
    Q_PROPERTY(QString starsAccessibleText READ starsAccessibleText NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString goalTitle READ goalTitle CONSTANT FINAL)
    Q_PROPERTY(QString goal READ goal NOTIFY goalChanged FINAL)
    Q_PROPERTY(double goalFraction READ goalFraction NOTIFY goalChanged FINAL)
    Q_PROPERTY(QString goalAccessibleText READ goalAccessibleText NOTIFY goalChanged FINAL)
    Q_PROPERTY(QString monthStars READ monthStars NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString monthTitle READ monthTitle CONSTANT FINAL)
    Q_PROPERTY(QString monthAccessibleText READ monthAccessibleText NOTIFY rewardChanged FINAL)

public:
    /// `hub` must outlive the presenter.
    explicit GoalsGadgetPresenter(WidgetHub& hub);

    [[nodiscard]] QString streak() const { return QString::number(reward_.streakDays) + "d"; }
    [[nodiscard]] QString streakAccessibleText() const { return "Racha: " + streak(); }
    /// The symbols of five stars.
    [[nodiscard]] QStringList stars() const;
    [[nodiscard]] QList<QColor> starColors() const;
    [[nodiscard]] QString starsAccessibleText() const;
    [[nodiscard]] QString goalTitle() const { return "Meta del día"; }
    /// Worked and to be worked today.
    [[nodiscard]] QString goal() const { return goal_.figures; }
    /// 0 to 1.
    [[nodiscard]] double goalFraction() const { return goal_.fraction; }
    [[nodiscard]] QString goalAccessibleText() const { return goalTitle() + ": " + goal_.figures; }
    [[nodiscard]] QString monthStars() const { return QString::number(reward_.starsThisMonth); }
    [[nodiscard]] QString monthTitle() const { return "este mes"; }
    [[nodiscard]] QString monthAccessibleText() const;

Q_SIGNALS:
    void rewardChanged();
    void goalChanged();

private:
    struct Reward {
        int streakDays = 0;
        int starsToday = 0;
        int starsThisMonth = 0;
        bool operator==(const Reward&) const = default;
    };
    struct Goal {
        QString figures;
        double fraction = 0;
        bool operator==(const Goal&) const = default;
    };

    void update() override;

    const WidgetHub& hub_;
    Reward reward_;
    Goal goal_;
};

}  // namespace tidewatch
