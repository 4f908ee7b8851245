#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>
#include <vector>

#include "classification/hour_summary.h"

namespace tidewatch {

/// One bar of the hourly chart. The three parts are shares of the bar's own height, stacked upward in this
/// order.
class HourBar final {
    Q_GADGET
    QML_VALUE_TYPE(hourBar)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(double height MEMBER height FINAL)
    Q_PROPERTY(double productive MEMBER productive FINAL)
    Q_PROPERTY(double neutral MEMBER neutral FINAL)
    Q_PROPERTY(double distracting MEMBER distracting FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString label;           ///< "9a", "12p"
    double height = 0;       ///< of the chart's height, 0.04 to 1
    double productive = 0;   ///< 0 to 1
    double neutral = 0;      ///< 0 to 1
    double distracting = 0;  ///< 0 to 1
    QString accessibleText{};

    bool operator==(const HourBar&) const = default;
};

/// Heights are relative to the busiest hour, or to ten minutes if that is more.
[[nodiscard]] std::vector<HourBar> hourBars(const std::vector<HourSummary>& hours);

/// "Actividad por hora: 9 am 25m, 10 am 1h 0m."
[[nodiscard]] QString hourBarsAccessibleText(const std::vector<HourSummary>& hours);

}  // namespace tidewatch
