#pragma once

#include <span>
#include <string>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "classification/category_store.h"
#include "classification/tier.h"
#include "core/app_usage_store.h"

namespace tidewatch {

/// Seconds by tier, and the resulting score.
struct ProductivityScore {
    Seconds productiveSeconds;
    Seconds neutralSeconds;
    Seconds distractingSeconds;
    Seconds uncategorizedSeconds;

    bool operator==(const ProductivityScore&) const = default;

    void add(Tier tier, Seconds seconds);

    /// The sum of all four.
    [[nodiscard]] Seconds totalActive() const;

    /// Productive plus distracting seconds: the basis of the score.
    [[nodiscard]] Seconds classified() const { return productiveSeconds + distractingSeconds; }

    /// The productive share of the classified seconds, 0 to 1; 0 if there are none.
    [[nodiscard]] double score() const;

    /// Whether there is enough time for a meaningful score: 60 seconds in total and 30 classified.
    [[nodiscard]] bool isSignificant() const;

    /// The score as a whole percentage, halves rounded up: "70%"; "—" if it is not significant.
    [[nodiscard]] std::string displayString() const;
};

/// The productive share of `productive` plus `distracting`; 0 if their sum is less than 1.
[[nodiscard]] double productiveShare(Seconds productive, Seconds distracting);

/// Computes scores from the applications' seconds and their current classification. Seconds booked to no
/// application are not included. Main thread only.
class ProductivityScorer final {
public:
    /// Both must outlive it.
    ProductivityScorer(const AppUsageStore& apps, const CategoryStore& categories);

    /// Over all `days` together; a day given twice counts twice.
    [[nodiscard]] ProductivityScore compute(std::span<const DayKey> days) const;

private:
    const AppUsageStore& apps_;
    const CategoryStore& categories_;
};

}  // namespace tidewatch
