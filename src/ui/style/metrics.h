#pragma once

#include <qqmlregistration.h>
#include <QObject>

namespace tidewatch {

/// Corner radii, distances and durations that all views share.
class Metrics final {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(double controlRadius MEMBER controlRadius CONSTANT FINAL)
    Q_PROPERTY(double chipRadius MEMBER chipRadius CONSTANT FINAL)
    Q_PROPERTY(double cardRadius MEMBER cardRadius CONSTANT FINAL)
    Q_PROPERTY(double widgetRadius MEMBER widgetRadius CONSTANT FINAL)
    Q_PROPERTY(double tightSpacing MEMBER tightSpacing CONSTANT FINAL)
    Q_PROPERTY(double spacing MEMBER spacing CONSTANT FINAL)
    Q_PROPERTY(double wideSpacing MEMBER wideSpacing CONSTANT FINAL)
    Q_PROPERTY(int quickDuration MEMBER quickDuration CONSTANT FINAL)
    Q_PROPERTY(int duration MEMBER duration CONSTANT FINAL)

public:
    // Points.
    double controlRadius = 6;
    double chipRadius = 8;
    double cardRadius = 14;
    double widgetRadius = 20;
    double tightSpacing = 4;
    double spacing = 8;
    double wideSpacing = 16;

    // Milliseconds.
    int quickDuration = 120;
    int duration = 200;

    bool operator==(const Metrics&) const = default;
};

}  // namespace tidewatch
