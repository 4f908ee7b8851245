#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>

#include "analysis/views/app_row.h"

namespace tidewatch {

/// A label with its figure and a bar.
class GadgetBar final {
    Q_GADGET
    QML_VALUE_TYPE(gadgetBar)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER id FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString id;  ///< the label, too
    QString value;
    double fraction = 0;  ///< of the bar, from 0 to 1
    QColor color;

    [[nodiscard]] QString accessibleText() const { return id + ": " + value; }

    bool operator==(const GadgetBar&) const = default;
};

/// An application with a bar.
class GadgetApp final {
    Q_GADGET
    QML_VALUE_TYPE(gadgetApp)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(tidewatch::AppRow app MEMBER app FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)

public:
    QString id;
    AppRow app;
    double fraction = 0;  ///< of the first application's seconds

    bool operator==(const GadgetApp&) const = default;
};

}  // namespace tidewatch
