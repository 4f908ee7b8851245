#include "classification/category_overrides.h"

#include <simdjson.h>

#include <string_view>
#include <utility>

#include "core/json_document.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

constexpr std::string_view appsKey = "appOverrides";
constexpr std::string_view tiersKey = "tierOverrides";

std::optional<std::string_view> asText(json::element value) {
    std::string_view text;
    return value.get_string().get(text) == simdjson::SUCCESS ? std::optional(text) : std::nullopt;
}

std::optional<Category> asCategory(json::element value) {
    const auto text = asText(value);
    return text ? categoryFromRaw(*text) : std::nullopt;
}

std::optional<Tier> asTier(json::element value) {
    const auto text = asText(value);
    return text ? tierFromRaw(*text) : std::nullopt;
}

bool readApps(json::object object, std::map<AppId, Category>& apps) {
    for (const auto& [app, value] : object) {
        const auto category = asCategory(value);
        if (!category) return false;
        apps[AppId(std::string(app))] = *category;
    }
    return true;
}

bool readTiers(json::array array, std::map<Category, Tier>& tiers) {
    if (array.size() % 2 != 0) return false;
    for (auto value = array.begin(); value != array.end(); ++value) {
        const auto category = asCategory(*value);
        ++value;
        const auto tier = asTier(*value);
        if (!category || !tier) return false;
        tiers[*category] = *tier;
    }
    return true;
}

}  // namespace

std::string serializeCategoryOverrides(const CategoryOverrides& overrides) {
    JsonWriter writer;
    writer.beginObject();
    writer.key(appsKey).beginObject();
    for (const auto& [app, category] : overrides.apps) writer.key(app.text()).string(rawValue(category));
    writer.endObject();
    writer.key(tiersKey).beginArray();
    for (const auto& [category, tier] : overrides.tiers) {
        writer.string(rawValue(category));
        writer.string(rawValue(tier));
    }
    writer.endArray();
    writer.endObject();
    return writer.take();
}

std::optional<CategoryOverrides> parseCategoryOverrides(std::string text) {
    const auto document = JsonDocument::parse(std::move(text));
    if (!document) return std::nullopt;
    json::object apps;
    json::array tiers;
    CategoryOverrides overrides;
    if (document->root().at_key(appsKey).get_object().get(apps) != simdjson::SUCCESS ||
        document->root().at_key(tiersKey).get_array().get(tiers) != simdjson::SUCCESS ||
        !readApps(apps, overrides.apps) || !readTiers(tiers, overrides.tiers)) {
        return std::nullopt;
    }
    return overrides;
}

}  // namespace tidewatch
