// The quick reading of lines against the strict one: it may be uncertain, but never wrong.

#include "claude/quick_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "claude/strict_line.h"

namespace tidewatch {
namespace {

constexpr auto usualLine =
    R"({"parentUuid":"9b1d","isSidechain":false,"version":2,"message":{"id":"msg_01","content":)"
    R"([{"type":"text","text":"He said:\n\t\"C:\\temp\\\" \/ caf\u00e9"}],"model":"claude-opus-4-7",)"
    R"("stop_reason":null,"usage":{"input_tokens":1,"cache_creation_input_tokens":20,)"
    R"("cache_read_input_tokens":300,"output_tokens":4000,"server_tool_use":{"requests":0}}},)"
    R"("timestamp":"2026-03-01T10:15:30.123Z"})";

// With other bytes behind the line than a reader might hope for.
class PaddedLine final {
public:
    explicit PaddedLine(const std::string& line, char after = '"')
        : text_(line + std::string(StrictLineReader::padding, after)), length_(line.size()) {}

    [[nodiscard]] std::string_view view() const { return std::string_view(text_).substr(0, length_); }

private:
    std::string text_;
    std::size_t length_;
};

bool isCertain(const std::string& line) {
    const PaddedLine padded(line);
    return QuickLineReader().read(padded.view()).has_value();
}

// Whether the quick reading is certain, and then says what the strict one does.
bool isRight(const std::string& line) {
    for (const char after : {'"', '}', '\\', '0', '\n'}) {
        const PaddedLine padded(line, after);
        const auto quick = QuickLineReader().read(padded.view());
        StrictLineReader strict;
        if (quick && quick != strict.read(padded.view())) return false;
    }
    return true;
}

std::string lineWithText(const std::string& text) {
    return R"({"text":")" + text + R"(","usage":{"output_tokens":7}})";
}

TEST(QuickLine, IsCertainOfLinesAsTheyAreUsuallyWritten) {
    const PaddedLine line(usualLine);
    const auto members = QuickLineReader().read(line.view());
    ASSERT_TRUE(members);
    ASSERT_TRUE(members->message && members->message->usage);
    EXPECT_EQ(*members->message->usage, (TokenCounts{1, 4000, 20, 300}));
    EXPECT_EQ(members->message->model, "claude-opus-4-7");
    EXPECT_EQ(members->timestamp, "2026-03-01T10:15:30.123Z");
    EXPECT_FALSE(members->createdAt || members->top.usage || members->top.model);
    EXPECT_TRUE(isRight(usualLine));
}

TEST(QuickLine, IsCertainOfEveryKindOfValue) {
    EXPECT_TRUE(isCertain(R"({"a":[],"b":{},"c":"","d":[1,-2,0.5,1e9,true,false,null,[{"e":{}}]]})"));
    EXPECT_TRUE(isCertain("{}"));
}

TEST(QuickLine, IsUncertainOfWhatIsNoJson) {
    const std::string good = R"({"a":"b","usage":{"output_tokens":7})";
    ASSERT_TRUE(isCertain(good + "}"));
    for (const auto* end : {"",
                            "}}",
                            "},",
                            ",}",
                            ",\"a\"}",
                            ",\"a\":}",
                            ",\"a\":\"}",
                            ",\"a\":\"b\"\"c\"}",
                            ",\"a\":nul}",
                            ",\"a\":trues}",
                            ",\"a\":[1,]}",
                            ",\"a\":[1}]}",
                            ",\"a\":01}",
                            ",\"a\":1.}",
                            ",\"a\":-}",
                            ",\"a\":+1}",
                            ",\"a\":1e}",
                            ",\"a\"\"b\"}",
                            ",a:1}",
                            ",\"a\":\\\"b\"}",
                            ",\"a\":\"b\\\"}",
                            ",\"a\":b}",
                            ",,\"a\":1}",
                            "]"}) {
        EXPECT_FALSE(isCertain(good + end)) << end;
    }
    EXPECT_FALSE(isCertain(""));
    EXPECT_FALSE(isCertain("[]"));
}

TEST(QuickLine, IsUncertainOfTextThatOnlyTheStrictReaderChecks) {
    for (std::size_t before = 0; before < 140; ++before) {
        const std::string filler(before, 'x');
        EXPECT_TRUE(isCertain(lineWithText(filler))) << before;
        EXPECT_TRUE(isCertain(lineWithText(filler + R"(\\\" \u00E9 \b\f\n\r\t\/)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + R"(\q)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + R"(\)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + R"(\u00eg)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + R"(\u00)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + R"(\ud83d)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + R"(\uDE42)"))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + '\t'))) << before;
        EXPECT_FALSE(isCertain(lineWithText(filler + '\0'))) << before;
    }
}

TEST(QuickLine, IsUncertainOfEscapesInWhatIsRead) {
    EXPECT_FALSE(isCertain(R"({"\u0075sage":{"output_tokens":7}})"));
    EXPECT_FALSE(isCertain(R"({"usage":{"output_tok\u0065ns":7}})"));
    EXPECT_FALSE(isCertain(R"({"m\u0065ssage":{"usage":{"output_tokens":7}}})"));
    EXPECT_FALSE(isCertain(R"({"model":"a\nb"})"));
    EXPECT_FALSE(isCertain(R"({"timestamp":"2026-03-01\u005410:15:30"})"));
    EXPECT_TRUE(isCertain(R"({"other":{"\u0075sage":{"output_tokens":7}}})"));
    EXPECT_TRUE(isCertain(R"({"a\nb":1})"));
}

TEST(QuickLine, OfDuplicateKeysTheLastCounts) {
    EXPECT_TRUE(isRight(R"({"usage":{"output_tokens":7},"usage":{"input_tokens":1}})"));
    EXPECT_TRUE(isRight(R"({"usage":{"output_tokens":7},"usage":[1]})"));
    EXPECT_TRUE(isRight(R"({"usage":{"output_tokens":7,"output_tokens":"x"}})"));
    EXPECT_TRUE(isRight(R"({"message":{"usage":{"output_tokens":7}},"message":{"model":"m"}})"));
    EXPECT_TRUE(isRight(R"({"message":{"usage":{"output_tokens":7}},"message":"x"})"));
    EXPECT_TRUE(isRight(
        R"({"timestamp":"a","timestamp":1,"created_at":"b","created_at":"c","model":"m","model":{}})"));
}

TEST(QuickLine, CountsAreReadAsTheStrictReaderReadsThem) {
    for (const auto* number : {"0",
                               "-0",
                               "7",
                               "-7",
                               "007",
                               "999999999999999999",
                               "1000000000000000000",
                               "9223372036854775807",
                               "9223372036854775808",
                               "-9223372036854775808",
                               "-9223372036854775809",
                               "18446744073709551616",
                               "1e3",
                               "5.0",
                               "1e999",
                               "\"5\"",
                               "true",
                               "null",
                               "[5]",
                               "{}"}) {
        EXPECT_TRUE(isRight(R"({"usage":{"output_tokens":)" + std::string(number) + "}}")) << number;
    }
}

TEST(QuickLine, VeryManyStringsAreUncertain) {
    std::string strings = R"("")";
    while (strings.size() < 100'000) strings += R"(,"")";
    EXPECT_FALSE(isCertain(R"({"a":[)" + strings + "]}"));
    EXPECT_TRUE(isRight(R"({"a":[)" + strings + "]}"));
}

TEST(QuickLine, IsRightAfterAnyDamageToALine) {
    std::mt19937 random(1);
    const auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    const std::string characters = "\"\\{}[]:,ux0e-t \t\n";
    int certain = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::string line = usualLine;
        const auto at = below(line.size());
        const char other = characters[below(characters.size())];
        switch (below(4)) {
            case 0:
                line.erase(at, 1 + below(8));
                break;
            case 1:
                line.insert(at, 1, other);
                break;
            case 2:
                line.insert(at, line.substr(below(line.size()), below(90)));
                break;
            default:
                line[at] = other;
        }
        EXPECT_TRUE(isRight(line)) << line;
        certain += isCertain(line) ? 1 : 0;
    }
    EXPECT_GT(certain, 2'000);
}

}  // namespace
}  // namespace tidewatch
