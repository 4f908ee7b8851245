#pragma once

#include "platform/api/preferences.h"

namespace tidewatch {

/// The settings of the Claude usage, in US dollars a month. As with Settings nothing is cached, and reads are
/// thread-safe.
class ClaudeSettings final {
public:
    /// `preferences` must outlive it.
    explicit ClaudeSettings(platform::Preferences& preferences) : preferences_(preferences) {}

    /// What the plan costs, above 0; 100 if never set or not above 0.
    [[nodiscard]] double subscriptionUsd() const;
    void setSubscriptionUsd(double usd);

    /// 0, as if never set, means no budget.
    [[nodiscard]] double monthlyBudgetUsd() const;
    void setMonthlyBudgetUsd(double usd);

private:
    platform::Preferences& preferences_;
};

}  // namespace tidewatch
