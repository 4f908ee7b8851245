#include "claude/model_pricing.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace tidewatch {
namespace {

constexpr ModelPricing opus{15.0, 75.0, 18.75, 1.5};
constexpr ModelPricing sonnet{3.0, 15.0, 3.75, 0.3};
constexpr ModelPricing haiku{0.8, 4.0, 1.0, 0.08};

using Prices = std::vector<std::pair<const char*, ModelPricing>>;

TEST(ModelPricing, NineModelsHaveAPrice) {
    for (const auto& [model, pricing] : Prices{{"claude-opus-4-7", opus},
                                               {"claude-opus-4-5", opus},
                                               {"claude-sonnet-4-6", sonnet},
                                               {"claude-sonnet-4-5", sonnet},
                                               {"claude-haiku-4-5-20251001", haiku},
                                               {"claude-haiku-4-5", haiku},
                                               {"claude-3-opus", opus},
                                               {"claude-3-5-sonnet-20241022", sonnet},
                                               {"claude-3-5-haiku-20241022", haiku}}) {
        EXPECT_EQ(pricingOf(model), pricing) << model;
    }
}

TEST(ModelPricing, AnUnknownNameHasThePriceOfItsFamilyOrOfSonnet) {
    for (const auto& [model, pricing] : Prices{{"claude-opus-5", opus},
                                               {"claude-3-haiku", haiku},
                                               {"opus-or-haiku", opus},
                                               {"CLAUDE-OPUS", sonnet},
                                               {"unknown", sonnet},
                                               {"", sonnet},
                                               {"another-family", sonnet}}) {
        EXPECT_EQ(pricingOf(model), pricing) << model;
    }
}

TEST(ModelPricing, AMillionOutputTokensOfSonnetCostExactlyFifteen) {
    EXPECT_EQ(costUsd({.output = 1000000}, pricingOf("claude-sonnet-4-6")), 15.0);
}

TEST(ModelPricing, EachKindOfTokenHasItsPrice) {
    EXPECT_EQ(costUsd({.input = 1000000}, opus), 15.0);
    EXPECT_EQ(costUsd({.cacheWrite = 1000000}, opus), 18.75);
    EXPECT_EQ(costUsd({.cacheRead = 1000000}, opus), 1.5);
    EXPECT_DOUBLE_EQ(costUsd({.input = 1, .output = 2, .cacheWrite = 3, .cacheRead = 4}, haiku),
                     (0.8 + 8.0 + 3.0 + 0.32) / 1000000);
}

}  // namespace
}  // namespace tidewatch
