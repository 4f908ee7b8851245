#include "claude/model_pricing.h"

#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

struct PricedModel {
    std::string_view model;
    ModelPricing pricing;
};

constexpr std::array pricedModels{
    PricedModel{"claude-opus-4-7", {15.0, 75.0, 18.75, 1.5}},
    PricedModel{"claude-opus-4-5", {15.0, 75.0, 18.75, 1.5}},
    PricedModel{"claude-sonnet-4-6", {3.0, 15.0, 3.75, 0.3}},
    PricedModel{"claude-sonnet-4-5", {3.0, 15.0, 3.75, 0.3}},
    PricedModel{"claude-haiku-4-5-20251001", {0.8, 4.0, 1.0, 0.08}},
    PricedModel{"claude-haiku-4-5", {0.8, 4.0, 1.0, 0.08}},
    PricedModel{"claude-3-opus", {15.0, 75.0, 18.75, 1.5}},
    PricedModel{"claude-3-5-sonnet-20241022", {3.0, 15.0, 3.75, 0.3}},
    PricedModel{"claude-3-5-haiku-20241022", {0.8, 4.0, 1.0, 0.08}},
};

const PricedModel* rowOf(std::string_view model) {
    const auto* row = std::ranges::find(pricedModels, model, &PricedModel::model);
    return row == pricedModels.end() ? nullptr : row;
}

}  // namespace

const ModelPricing& pricingOf(std::string_view model) {
    if (const auto* exact = rowOf(model)) return exact->pricing;
    const auto contains = [&](std::string_view part) { return model.find(part) != std::string_view::npos; };
    if (contains("opus")) return rowOf("claude-opus-4-7")->pricing;
    if (contains("haiku")) return rowOf("claude-haiku-4-5-20251001")->pricing;
    return rowOf("claude-sonnet-4-6")->pricing;
}

double costUsd(const TokenCounts& tokens, const ModelPricing& pricing) {
    const auto millions = [](std::int64_t count) { return static_cast<double>(count) / 1000000.0; };
    return millions(tokens.input) * pricing.inputMTok + millions(tokens.output) * pricing.outputMTok +
           millions(tokens.cacheWrite) * pricing.cacheWriteMTok +
           millions(tokens.cacheRead) * pricing.cacheReadMTok;
}

}  // namespace tidewatch
