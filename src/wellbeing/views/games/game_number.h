#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <QString>
#include <cstdint>

namespace tidewatch {

/// A labelled number under a game's board.
class GameNumber final {
    Q_GADGET
    QML_VALUE_TYPE(gameNumber)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString title;
    QString value;
    QString accessibleText;

    bool operator==(const GameNumber&) const = default;
};

/// `name` is the title in full.
[[nodiscard]] inline GameNumber gameNumber(const QString& title, const QString& name, std::int64_t value) {
    const auto digits = QString::number(value);
    return {title, digits, name + ": " + digits};
}

}  // namespace tidewatch
