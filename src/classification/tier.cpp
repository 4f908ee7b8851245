#include "classification/tier.h"

#include <array>

#include "classification/closed_list.h"

namespace tidewatch {
namespace {

struct Row {
    Tier value;
    std::string_view raw;
    std::string_view displayName;
};

constexpr std::array rows{
    Row{Tier::productive, "productivo", "Productivo"},
    Row{Tier::neutral, "neutral", "Neutral"},
    Row{Tier::distracting, "distrayendo", "Distrayendo"},
    Row{Tier::uncategorized, "sincategorizar", "Sin categorizar"},
};

constexpr auto tiers = valuesOf(rows);

}  // namespace

std::span<const Tier> allTiers() {
    return tiers;
}

std::string_view rawValue(Tier tier) {
    return rowOf(rows, tier).raw;
}

std::string_view displayName(Tier tier) {
    return rowOf(rows, tier).displayName;
}

std::optional<Tier> tierFromRaw(std::string_view raw) {
    return valueFromRaw(rows, raw);
}

}  // namespace tidewatch
