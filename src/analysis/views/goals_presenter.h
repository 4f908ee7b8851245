#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QStringList>
#include <functional>

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "analysis/reward_engine.h"
#include "analysis/views/dashboard_tab_presenter.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The progress of one goal.
class GoalRow final {
    Q_GADGET
    QML_VALUE_TYPE(goalRow)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString figures MEMBER figures FINAL)
    Q_PROPERTY(QString mark MEMBER mark FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString label;
    QString figures;      ///< "3h 5m / 6h 0m"
    QString mark;         ///< "✓" once it is reached
    double fraction = 0;  ///< 0 to 1
    QColor color;
    QString accessibleText{};

    bool operator==(const GoalRow&) const = default;
};

/// A goal with its stepper.
class GoalStepper final {
    Q_GADGET
    QML_VALUE_TYPE(goalStepper)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(double number MEMBER number FINAL)
    Q_PROPERTY(double min MEMBER min FINAL)
    Q_PROPERTY(double max MEMBER max FINAL)
    Q_PROPERTY(double step MEMBER step FINAL)
    Q_PROPERTY(bool canDecrease MEMBER canDecrease FINAL)
    Q_PROPERTY(bool canIncrease MEMBER canIncrease FINAL)

public:
    QString id;
    QString title;
    QString value;
    double number = 0;  ///< what `value` says, as `min`, `max` and `step` in the same unit
    double min = 0;
    double max = 0;
    double step = 0;
    bool canDecrease = false;
    bool canIncrease = false;

    bool operator==(const GoalStepper&) const = default;
};

/// Stars, progress, and the goals' settings. Main thread only.
class GoalsPresenter final : public tidewatch::DashboardTabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString rewardTitle READ rewardTitle CONSTANT FINAL)
    Q_PROPERTY(QStringList stars READ stars NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QList<QColor> starColors READ starColors NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString starsAccessibleText READ starsAccessibleText NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString streakTitle READ streakTitle CONSTANT FINAL)
    Q_PROPERTY(QString streak READ streak NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString monthTitle READ monthTitle CONSTANT FINAL)
    Q_PROPERTY(QString monthStars READ monthStars NOTIFY rewardChanged FINAL)
    Q_PROPERTY(QString progressTitle READ progressTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* progress READ progress CONSTANT FINAL)
    Q_PROPERTY(QString settingsTitle READ settingsTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* steppers READ steppers CONSTANT FINAL)
    Q_PROPERTY(QString notificationsTitle READ notificationsTitle CONSTANT FINAL)
    Q_PROPERTY(bool notificationsEnabled READ notificationsEnabled NOTIFY settingsChanged FINAL)
    Q_PROPERTY(QString reportTitle READ reportTitle CONSTANT FINAL)

public:
    struct Sources {
        const GoalEvaluator& evaluator;
        const RewardEngine& rewards;
        GoalStore& goals;
    };

    /// All references must outlive it; `exportReport` asks for a path and writes the monthly report there.
    GoalsPresenter(DashboardModel& model, const Sources& sources, std::function<void()> exportReport);

    [[nodiscard]] QString rewardTitle() const { return "RECOMPENSA DE HOY"; }
    [[nodiscard]] QStringList stars() const { return stars_; }
    [[nodiscard]] QList<QColor> starColors() const { return starColors_; }
    [[nodiscard]] QString starsAccessibleText() const { return starsAccessibleText_; }
    [[nodiscard]] QString streakTitle() const { return "Racha"; }
    [[nodiscard]] QString streak() const { return streak_; }
    [[nodiscard]] QString monthTitle() const { return "Estrellas del mes"; }
    [[nodiscard]] QString monthStars() const { return monthStars_; }
    [[nodiscard]] QString progressTitle() const { return "PROGRESO"; }
    [[nodiscard]] RowListModel* progress() { return &progress_; }
    [[nodiscard]] QString settingsTitle() const { return "FIJAR METAS"; }
    [[nodiscard]] RowListModel* steppers() { return &steppers_; }
    [[nodiscard]] QString notificationsTitle() const { return "Notificaciones de metas"; }
    [[nodiscard]] bool notificationsEnabled() const { return sources_.goals.settings().notificationsEnabled; }
    [[nodiscard]] QString reportTitle() const { return "Generar reporte PDF del mes…"; }

    /// Changes the goal with this id by one step, clamped to its range and saved at once. An unknown id has
    /// no effect.
    Q_INVOKABLE void increase(const QString& id);
    Q_INVOKABLE void decrease(const QString& id);
    Q_INVOKABLE void setNotificationsEnabled(bool enabled);
    Q_INVOKABLE void exportReport();

Q_SIGNALS:
    void rewardChanged();
    void settingsChanged();

private:
    void update() override;
    void updateReward();
    void step(const QString& id, int direction);
    void save(const GoalSettings& settings);

    Sources sources_;
    std::function<void()> exportReport_;
    QStringList stars_;
    QList<QColor> starColors_;
    QString starsAccessibleText_;
    QString streak_;
    QString monthStars_;
    RowList<GoalRow> progress_;
    RowList<GoalStepper> steppers_;
    Connection goalsChanged_;
};

}  // namespace tidewatch
