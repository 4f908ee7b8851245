#include "ui/symbols/stars.h"

#include <algorithm>

namespace tidewatch {

QStringList starSymbols(int earned) {
    QStringList names;
    for (int star = 0; star < starCount; ++star) names.append(star < earned ? "star.fill" : "star");
    return names;
}

QString starsText(int earned) {
    return QString("%1 de %2 estrellas").arg(std::clamp(earned, 0, starCount)).arg(starCount);
}

}  // namespace tidewatch
