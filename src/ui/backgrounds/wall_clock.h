#pragma once

#include <qqmlregistration.h>
#include <QObject>

#include "platform/api/clock.h"

namespace tidewatch {

/// The wall clock for animated backgrounds.
class WallClock final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the presenters")

public:
    /// `clock` must outlive this object.
    explicit WallClock(const platform::Clock& clock, QObject* parent = nullptr)
        : QObject(parent), clock_(clock) {}

    /// Fractional seconds since the beginning of 2001, UTC.
    [[nodiscard]] double secondsSinceReferenceDate() const;

private:
    const platform::Clock& clock_;
};

}  // namespace tidewatch
