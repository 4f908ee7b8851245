// The file of the user's classification.

#include <string>

#include "classification/category_overrides.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {

void check(std::string_view input) {
    const auto overrides = parseCategoryOverrides(std::string(input));
    if (!overrides) return;
    const auto json = parseStrictly(input);
    require(json.has_value(), "what is not JSON is refused");
    const auto apps = json->all("appOverrides");
    if (apps.size() == 1) {
        const auto* members = apps.front()->as<Json::Members>();
        require(members != nullptr, "the applications are an object");
        for (const auto& [app, category] : *members) {
            require(overrides->apps.contains(AppId(app)), "every application is read");
            require(apps.front()->all(app).size() > 1 ||
                        rawValue(overrides->apps.at(AppId(app))) == *category.as<std::string>(),
                    "an application is read with its category");
        }
    }

    const auto written = serializeCategoryOverrides(*overrides);
    require(parseStrictly(written).has_value(), "what is written is JSON");
    require(parseCategoryOverrides(written) == overrides, "what is written reads back the same");
}

}  // namespace tidewatch::fuzz
