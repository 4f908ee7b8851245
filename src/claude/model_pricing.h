#pragma once

#include <string_view>

#include "claude/token_counts.h"

namespace tidewatch {

/// List prices of a model, in US dollars per million tokens.
struct ModelPricing {
    double inputMTok;
    double outputMTok;
    double cacheWriteMTok;
    double cacheReadMTok;
    bool operator==(const ModelPricing&) const = default;
};

/// The prices of a model; those of a family for an identifier that is not in the table, and those of
/// "claude-sonnet-4-6" for any other name.
[[nodiscard]] const ModelPricing& pricingOf(std::string_view model);

/// What so many tokens cost, in US dollars.
[[nodiscard]] double costUsd(const TokenCounts& tokens, const ModelPricing& pricing);

}  // namespace tidewatch
