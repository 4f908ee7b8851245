#include "classification/productivity_score.h"

#include <fmt/format.h>

#include <cmath>

namespace tidewatch {
namespace {

constexpr Seconds minActive(60);
constexpr Seconds minClassified(30);

}  // namespace

void ProductivityScore::add(Tier tier, Seconds seconds) {
    switch (tier) {
        case Tier::productive:
            productiveSeconds += seconds;
            break;
        case Tier::neutral:
            neutralSeconds += seconds;
            break;
        case Tier::distracting:
            distractingSeconds += seconds;
            break;
        case Tier::uncategorized:
            uncategorizedSeconds += seconds;
            break;
    }
}

Seconds ProductivityScore::totalActive() const {
    return productiveSeconds + neutralSeconds + distractingSeconds + uncategorizedSeconds;
}

double ProductivityScore::score() const {
    return productiveShare(productiveSeconds, distractingSeconds);
}

bool ProductivityScore::isSignificant() const {
    return totalActive() >= minActive && classified() >= minClassified;
}

std::string ProductivityScore::displayString() const {
    return isSignificant() ? fmt::format("{}%", std::llround(score() * 100)) : "—";
}

double productiveShare(Seconds productive, Seconds distracting) {
    const auto sum = productive + distracting;
    if (sum < Seconds(1)) return 0;
    return static_cast<double>(productive.count()) / static_cast<double>(sum.count());
}

ProductivityScorer::ProductivityScorer(const AppUsageStore& apps, const CategoryStore& categories)
    : apps_(apps), categories_(categories) {}

ProductivityScore ProductivityScorer::compute(std::span<const DayKey> days) const {
    ProductivityScore score;
    for (const auto& [app, seconds] : apps_.aggregate(days)) score.add(categories_.tier(app), seconds);
    return score;
}

}  // namespace tidewatch
