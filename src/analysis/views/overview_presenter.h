#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>

#include "analysis/views/app_row.h"
#include "analysis/views/dashboard_tab_presenter.h"
#include "analysis/views/hour_bar.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// One of the three columns of applications.
class TierColumnPresenter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the overview")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QColor color READ color CONSTANT FINAL)
    Q_PROPERTY(QString time READ time NOTIFY changed FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* apps READ apps CONSTANT FINAL)

public:
    explicit TierColumnPresenter(Tier tier) : tier_(tier) {}

    [[nodiscard]] QString title() const;
    [[nodiscard]] QColor color() const;
    [[nodiscard]] QString time() const { return time_; }
    [[nodiscard]] bool isEmpty() const { return apps_.rows().empty(); }
    [[nodiscard]] QString emptyText() const { return "Nada por aquí en este día."; }
    [[nodiscard]] RowListModel* apps() { return &apps_; }

    void update(const DashboardModel& model);

Q_SIGNALS:
    void changed();

private:
    Tier tier_;
    QString time_;
    RowList<AppRow> apps_;
};

/// The overview of the day. Main thread only.
class OverviewPresenter final : public tidewatch::DashboardTabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString scoreTitle READ scoreTitle CONSTANT FINAL)
    Q_PROPERTY(QString score READ score NOTIFY scoreChanged FINAL)
    /// The filled part of the ring, 0 to 1.
    Q_PROPERTY(double scoreFraction READ scoreFraction NOTIFY scoreChanged FINAL)
    Q_PROPERTY(QColor scoreColor READ scoreColor NOTIFY scoreChanged FINAL)
    /// Empty if there is nothing to compare with.
    Q_PROPERTY(QString comparison READ comparison NOTIFY scoreChanged FINAL)
    Q_PROPERTY(QColor comparisonColor READ comparisonColor NOTIFY scoreChanged FINAL)
    Q_PROPERTY(QString total READ total NOTIFY scoreChanged FINAL)
    /// Score, total and comparison as accessible text.
    Q_PROPERTY(QString scoreAccessibleText READ scoreAccessibleText NOTIFY scoreChanged FINAL)
    Q_PROPERTY(tidewatch::TierColumnPresenter* productive READ productive CONSTANT FINAL)
    Q_PROPERTY(tidewatch::TierColumnPresenter* neutral READ neutral CONSTANT FINAL)
    Q_PROPERTY(tidewatch::TierColumnPresenter* distracting READ distracting CONSTANT FINAL)
    Q_PROPERTY(QString hoursTitle READ hoursTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* hours READ hours CONSTANT FINAL)
    /// The chart's accessible text.
    Q_PROPERTY(QString hoursAccessibleText READ hoursAccessibleText NOTIFY hoursChanged FINAL)

public:
    explicit OverviewPresenter(DashboardModel& model);

    [[nodiscard]] QString scoreTitle() const { return "PRODUCTIVIDAD"; }
    [[nodiscard]] QString score() const { return score_; }
    [[nodiscard]] double scoreFraction() const { return scoreFraction_; }
    [[nodiscard]] QColor scoreColor() const { return scoreColor_; }
    [[nodiscard]] QString comparison() const { return comparison_; }
    [[nodiscard]] QColor comparisonColor() const { return comparisonColor_; }
    [[nodiscard]] QString total() const { return total_; }
    [[nodiscard]] QString scoreAccessibleText() const;
    [[nodiscard]] TierColumnPresenter* productive() { return &productive_; }
    [[nodiscard]] TierColumnPresenter* neutral() { return &neutral_; }
    [[nodiscard]] TierColumnPresenter* distracting() { return &distracting_; }
    [[nodiscard]] QString hoursTitle() const { return "ACTIVIDAD POR HORA"; }
    [[nodiscard]] RowListModel* hours() { return &hours_; }
    [[nodiscard]] QString hoursAccessibleText() const { return hoursAccessibleText_; }

Q_SIGNALS:
    void scoreChanged();
    void hoursChanged();

private:
    void update() override;
    void updateScore();
    void updateComparison();
    void compareWith(double reference, const QString& name);

    TierColumnPresenter productive_{Tier::productive};
    TierColumnPresenter neutral_{Tier::neutral};
    TierColumnPresenter distracting_{Tier::distracting};
    QString score_;
    double scoreFraction_ = 0;
    QColor scoreColor_;
    QString comparison_;
    QColor comparisonColor_;
    QString total_;
    RowList<HourBar> hours_;
    QString hoursAccessibleText_;
};

}  // namespace tidewatch
