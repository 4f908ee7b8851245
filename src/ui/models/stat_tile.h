#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>

namespace tidewatch {

/// A figure with a title and a subtitle, shown as a card.
class StatTile final {
    Q_GADGET
    QML_VALUE_TYPE(statTile)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle FINAL)

public:
    QString id;
    QString symbol;
    QString title;
    QString value;
    QString subtitle;

    bool operator==(const StatTile&) const = default;
};

}  // namespace tidewatch
