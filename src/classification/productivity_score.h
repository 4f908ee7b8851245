#pragma once

#include <span>
#include <string>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "classification/category_store.h"
#include "classification/tier.h"
#include "core/app_usage_store.h"

namespace tidewatch {

/// Seconds by tier, and the figure that they give.
struct ProductivityScore {
    Seconds productiveSeconds;
    Seconds neutralSeconds;
    Seconds distractingSeconds;
    Seconds uncategorizedSeconds;

    bool operator==(const ProductivityScore&) const = default;

    void add(Tier tier, Seconds seconds);

    /// The sum of all four.
    [[nodiscard]] Seconds totalActive() const;

    /// Productive and distracting seconds: what the figure is made of.
    [[nodiscard]] Seconds classified() const { return productiveSeconds + distractingSeconds; }

    /// The productive share of the classified seconds, 0 to 1; 0 if there are none.
    [[nodiscard]] double score() const;

    /// Whether there is enough time, 60 seconds in all and 30 classified ones, for the figure to mean
    /// something.
    [[nodiscard]] bool isSignificant() const;

    /// The figure in whole per cent, halves rounded up: "70%"; "—" if it is not telling.
    [[nodiscard]] std::string displayString() const;
};

/// The productive share of `productive` and `distracting`, 0 if their sum is less than 1.
[[nodiscard]] double productiveShare(Seconds productive, Seconds distracting);

/// Computes scores from the seconds of applications and their present classification. Seconds that no
/// application got are outside of them. Main thread only.
class ProductivityScorer final {
public:
    /// Both must outlive it.
    ProductivityScorer(const AppUsageStore& apps, const CategoryStore& categories);

    /// Over all the days together; a day given twice counts twice.
    [[nodiscard]] ProductivityScore compute(std::span<const DayKey> days) const;

private:
    const AppUsageStore& apps_;
    const CategoryStore& categories_;
};

}  // namespace tidewatch
