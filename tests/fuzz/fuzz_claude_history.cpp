// The file of past months, compared with a strict parser.

#include <string>

#include "claude/claude_month_record.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {

void check(std::string_view input) {
    const auto months = parseMonthHistory(std::string(input));
    if (!months) return;
    const auto json = parseStrictly(input);
    require(json.has_value(), "what is not JSON is refused");
    const auto* rows = json->as<Json::Elements>();
    require(rows && rows->size() == months->size(), "every row is read");
    for (std::size_t i = 0; i < months->size(); ++i) {
        const auto named = (*rows)[i].all("month");
        require(!named.empty() && named.back()->as<std::string>() &&
                    *named.back()->as<std::string>() == (*months)[i].month,
                "a month is read as it stands");
        const auto price = (*rows)[i].all("subscriptionUSD");
        require(!price.empty() && price.back()->as<Json::Number>() &&
                    realOf(*price.back()->as<Json::Number>()) == (*months)[i].subscriptionUsd,
                "a price is read as it stands");
    }
    const auto written = serializeMonthHistory(*months);
    require(written && parseStrictly(*written).has_value(), "what is written is JSON");
    require(parseMonthHistory(*written) == months, "what is written reads back the same");
}

}  // namespace tidewatch::fuzz
