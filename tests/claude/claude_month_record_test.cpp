#include "claude/claude_month_record.h"

#include <gtest/gtest.h>

#include <limits>

namespace tidewatch {
namespace {

const ClaudeMonthRecord march{"2026-03", 12, 155, 3, 400, 250, 99.5};
const std::string marchText =
    R"({"month":"2026-03","activeWindows":12,"possibleWindows":155,"heavyWindows":3,"conversations":400,)"
    R"("outputTokensK":250,"subscriptionUSD":99.5})";

using Records = std::vector<ClaudeMonthRecord>;

TEST(ClaudeMonthRecord, IsWrittenCompactlyInDeclaredOrder) {
    EXPECT_EQ(serializeMonthHistory({march}), "[" + marchText + "]");
    EXPECT_EQ(serializeMonthHistory({}), "[]");
}

TEST(ClaudeMonthRecord, ReadsBackAsWritten) {
    auto april = march;
    april.month = "2026-04 \"\\/\n";
    april.subscriptionUsd = 100;
    april.outputTokensK = std::numeric_limits<std::int64_t>::max();
    const Records records{march, april};
    EXPECT_EQ(parseMonthHistory(serializeMonthHistory(records).value()), records);
}

TEST(ClaudeMonthRecord, AnySpacingOrderAndFurtherKeysAreRead) {
    EXPECT_EQ(parseMonthHistory(R"( [ { "note": [1], "subscriptionUSD": 99.5, "outputTokensK": 250,
        "conversations": 400, "heavyWindows": 3.0, "possibleWindows": 155, "activeWindows": 12,
        "month": "2026-03" } ] )"),
              Records{march});
}

TEST(ClaudeMonthRecord, ARowThatLacksAKeyMakesTheFileInvalid) {
    for (const auto* key : {"month", "activeWindows", "possibleWindows", "heavyWindows", "conversations",
                            "outputTokensK", "subscriptionUSD"}) {
        auto incomplete = marchText;
        incomplete.replace(incomplete.find(key), 1, "X");
        EXPECT_EQ(parseMonthHistory("[" + marchText + "," + incomplete + "]"), std::nullopt) << key;
    }
}

TEST(ClaudeMonthRecord, AValueOfAnotherTypeMakesTheFileInvalid) {
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{{"\"2026-03\"", "202603"},
                                                                                   {"12", "12.5"},
                                                                                   {"12", "\"12\""},
                                                                                   {"12", "1e300"},
                                                                                   {"400", "null"},
                                                                                   {"99.5", "\"99.5\""}}) {
        auto wrong = marchText;
        wrong.replace(wrong.find(":" + from) + 1, from.size(), to);
        EXPECT_EQ(parseMonthHistory("[" + wrong + "]"), std::nullopt) << to;
    }
}

TEST(ClaudeMonthRecord, WhatIsNoArrayOfObjectsIsInvalid) {
    for (const auto* text : {"", "{}", "null", "[1]", "[[]]", "[{}]", "[", "[]x"}) {
        EXPECT_EQ(parseMonthHistory(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseMonthHistory("[]"), Records());
}

TEST(ClaudeMonthRecord, ANumberThatIsNotFiniteCannotBeWritten) {
    auto endless = march;
    endless.subscriptionUsd = std::numeric_limits<double>::infinity();
    EXPECT_EQ(serializeMonthHistory({endless}), std::nullopt);
}

TEST(ClaudeMonthRecord, EfficiencyIsZeroWithoutPossibleWindows) {
    EXPECT_EQ((ClaudeMonthRecord{.month = "", .activeWindows = 5, .possibleWindows = 10}).efficiency(), 0.5);
    EXPECT_EQ((ClaudeMonthRecord{.month = "", .activeWindows = 5, .possibleWindows = 0}).efficiency(), 0);
}

}  // namespace
}  // namespace tidewatch
