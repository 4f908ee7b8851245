#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>

namespace tidewatch {

/// A button below a running game.
class GameControl final {
    Q_GADGET
    QML_VALUE_TYPE(gameControl)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)

public:
    int id = 0;  ///< its place
    QString symbol;
    QString name;  ///< for assistive technology

    bool operator==(const GameControl&) const = default;
};

}  // namespace tidewatch
