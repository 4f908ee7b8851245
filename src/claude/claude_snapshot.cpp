#include "claude/claude_snapshot.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

#include "claude/checked_sum.h"

namespace tidewatch {

std::optional<std::string> topModelOf(const TokensByModel& byModel) {
    // The first of equal ones.
    const auto top = std::ranges::max_element(byModel, {}, &TokensByModel::value_type::second);
    return top == byModel.end() ? std::nullopt : std::optional(top->first);
}

std::int64_t ClaudeUsagePeriod::totalTokens() const {
    auto total = inputTokens;
    for (const auto tokens : {outputTokens, cacheWriteTokens, cacheReadTokens}) addChecked(total, tokens);
    return total;
}

std::string ClaudeUsagePeriod::displayCost() const {
    return fmt::format("${:.2f}", estimatedUsd);
}

std::string_view shortModel(std::string_view model) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 3> families{
        {{"opus", "Opus"}, {"sonnet", "Sonnet"}, {"haiku", "Haiku"}}};
    for (const auto& [part, family] : families) {
        if (model.find(part) != std::string_view::npos) return family;
    }
    return model;
}

std::string fmtK(std::int64_t tokens) {
    if (tokens < 1000) return fmt::format("{}", tokens);
    if (tokens < 1000000) return fmt::format("{:.0f}K", static_cast<double>(tokens) / 1000.0);
    return fmt::format("{:.1f}M", static_cast<double>(tokens) / 1000000.0);
}

double ClaudeWindowRoi::efficiency() const {
    if (possibleWindows < 1) return 0;
    return std::min(static_cast<double>(activeWindows) / static_cast<double>(possibleWindows), 1.0);
}

double ClaudeWindowRoi::costPerWindow(double subscriptionUsd) const {
    return activeWindows < 1 ? 0 : subscriptionUsd / static_cast<double>(activeWindows);
}

}  // namespace tidewatch
