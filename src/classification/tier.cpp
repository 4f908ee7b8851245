#include "classification/tier.h"

#include <array>

#include "classification/enum_table.h"

namespace tidewatch {
namespace {

struct TierRow {
    Tier value;
    std::string_view raw;
    std::string_view displayName;
};

constexpr auto tierRows = enumTable(std::array{
    TierRow{Tier::productive, "productivo", "Productivo"},
    TierRow{Tier::neutral, "neutral", "Neutral"},
    TierRow{Tier::distracting, "distrayendo", "Distrayendo"},
    TierRow{Tier::uncategorized, "sincategorizar", "Sin categorizar"},
});

constexpr auto tiers = valuesOf(tierRows);

}  // namespace

std::span<const Tier> allTiers() {
    return tiers;
}

std::string_view rawValue(Tier tier) {
    return rowOf(tierRows, tier).raw;
}

std::string_view displayName(Tier tier) {
    return rowOf(tierRows, tier).displayName;
}

std::optional<Tier> tierFromRaw(std::string_view raw) {
    return valueFromRaw(tierRows, raw);
}

}  // namespace tidewatch
