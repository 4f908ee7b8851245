#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QStringList>

#include "analysis/views/app_row.h"
#include "analysis/views/dashboard_tab_presenter.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// A ten-minute cell of an hour.
class BucketCell final {
    Q_GADGET
    QML_VALUE_TYPE(bucketCell)
    Q_PROPERTY(bool filled MEMBER filled FINAL)
    Q_PROPERTY(double height MEMBER height FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    bool filled = false;
    double height = 0;  ///< of the bar, in points; may exceed the cell if the clock was set back
    QColor color;
    QString accessibleText;  ///< "9:10am, 9m, Productivo"; empty if not filled

    bool operator==(const BucketCell&) const = default;
};

/// A labelled duration.
class NamedTime final {
    Q_GADGET
    QML_VALUE_TYPE(namedTime)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString time MEMBER time FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)

public:
    QString name;
    QString time;
    QColor color;  ///< transparent without a tier

    bool operator==(const NamedTime&) const = default;
};

/// An hour of the timesheet.
class HourSheet final {
    Q_GADGET
    QML_VALUE_TYPE(hourSheet)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString hour MEMBER hour FINAL)
    Q_PROPERTY(QList<tidewatch::BucketCell> buckets MEMBER buckets FINAL)
    Q_PROPERTY(QList<tidewatch::NamedTime> summary MEMBER summary FINAL)
    Q_PROPERTY(QList<tidewatch::AppRow> activities MEMBER activities FINAL)
    Q_PROPERTY(QList<tidewatch::NamedTime> categories MEMBER categories FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString hour;  ///< "9:00am"
    QList<BucketCell> buckets{};
    QList<NamedTime> summary{};
    QList<AppRow> activities{};
    QList<NamedTime> categories{};
    QString accessibleText{};

    bool operator==(const HourSheet&) const = default;
};

/// The hours of the day. Main thread only.
class TimesheetPresenter final : public tidewatch::DashboardTabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QList<QString> columns READ columns CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* hours READ hours CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY hoursChanged FINAL)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT FINAL)

public:
    /// `model` must outlive it.
    explicit TimesheetPresenter(DashboardModel& model);

    [[nodiscard]] QStringList columns() const { return {"HORA", "SUMARIO", "ACTIVIDADES"}; }
    [[nodiscard]] RowListModel* hours() { return &hours_; }
    [[nodiscard]] bool isEmpty() const { return hours_.rows().empty(); }
    [[nodiscard]] QString emptyText() const { return "Sin actividad registrada para este día."; }

Q_SIGNALS:
    void hoursChanged();

private:
    void update() override;

    RowList<HourSheet> hours_;
};

}  // namespace tidewatch
