#include "analysis/views/tier_color.h"

namespace tidewatch {
namespace {

QColor colorOr(Tier tier, const Color& other) {
    switch (tier) {
        case Tier::productive:
            return toQColor(ochre_palette::productive);
        case Tier::neutral:
            return toQColor(ochre_palette::neutral);
        case Tier::distracting:
            return toQColor(ochre_palette::distracting);
        case Tier::uncategorized:
            break;
    }
    return toQColor(other);
}

}  // namespace

QColor tierColor(Tier tier) {
    return colorOr(tier, DashboardStyle::tierOther);
}

QColor bucketColor(Tier tier) {
    return colorOr(tier, ochre_palette::other);
}

}  // namespace tidewatch
