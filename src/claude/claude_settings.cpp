#include "claude/claude_settings.h"

#include <string_view>

namespace tidewatch {
namespace {

constexpr std::string_view subscriptionKey = "claude.subscriptionUSD";
constexpr std::string_view budgetKey = "claude.monthlyBudget";
constexpr double defaultSubscriptionUsd = 100.0;

}  // namespace

double ClaudeSettings::subscriptionUsd() const {
    const auto usd = preferences_.real(subscriptionKey);
    return usd > 0 ? usd : defaultSubscriptionUsd;
}

void ClaudeSettings::setSubscriptionUsd(double usd) {
    preferences_.setReal(subscriptionKey, usd);
}

double ClaudeSettings::monthlyBudgetUsd() const {
    return preferences_.real(budgetKey);
}

void ClaudeSettings::setMonthlyBudgetUsd(double usd) {
    preferences_.setReal(budgetKey, usd);
}

}  // namespace tidewatch
