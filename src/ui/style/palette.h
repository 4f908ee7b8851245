#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QObject>

#include "shell/themes/dashboard_style.h"

namespace tidewatch {

/// The colours of a DashboardStyle for the views.
class Palette final {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QColor bg MEMBER bg FINAL)
    Q_PROPERTY(QColor card MEMBER card FINAL)
    Q_PROPERTY(QColor cardSubtle MEMBER cardSubtle FINAL)
    Q_PROPERTY(QColor stroke MEMBER stroke FINAL)
    Q_PROPERTY(QColor strongMute MEMBER strongMute FINAL)
    Q_PROPERTY(QColor mute MEMBER mute FINAL)
    Q_PROPERTY(QColor muteSoft MEMBER muteSoft FINAL)
    Q_PROPERTY(QColor primaryText MEMBER primaryText FINAL)
    Q_PROPERTY(QColor secondaryText MEMBER secondaryText FINAL)
    Q_PROPERTY(QList<QColor> gamePieces MEMBER gamePieces FINAL)
    Q_PROPERTY(QColor windowBackground MEMBER windowBackground FINAL)
    Q_PROPERTY(QColor tierProductive MEMBER tierProductive FINAL)
    Q_PROPERTY(QColor tierNeutral MEMBER tierNeutral FINAL)
    Q_PROPERTY(QColor tierDistracting MEMBER tierDistracting FINAL)
    Q_PROPERTY(QColor tierOther MEMBER tierOther FINAL)
    Q_PROPERTY(QColor amber MEMBER amber FINAL)
    Q_PROPERTY(QColor onFill MEMBER onFill FINAL)
    Q_PROPERTY(QColor ground MEMBER ground FINAL)
    Q_PROPERTY(QColor textGround MEMBER textGround FINAL)
    Q_PROPERTY(QColor widget MEMBER widget FINAL)
    Q_PROPERTY(QColor widgetTextGround MEMBER widgetTextGround FINAL)

public:
    Palette() = default;
    explicit Palette(const DashboardStyle& style);

    QColor bg;
    QColor card;
    QColor cardSubtle;
    QColor stroke;
    QColor strongMute;
    QColor mute;
    QColor muteSoft;
    QColor primaryText;
    QColor secondaryText;
    QList<QColor> gamePieces;
    QColor windowBackground;
    QColor tierProductive;
    QColor tierNeutral;
    QColor tierDistracting;
    QColor tierOther;
    QColor amber;
    QColor onFill;            ///< of text and symbols on a fill of one of the tiers' colours
    QColor ground;            ///< below cards and text on busy backgrounds; else transparent
    QColor textGround;        ///< the brightest opaque background of text on a card
    QColor widget;            ///< of a widget on the desktop, translucent
    QColor widgetTextGround;  ///< the same, opaque, over the wallpaper that leaves the least contrast

    bool operator==(const Palette&) const = default;
};

}  // namespace tidewatch
