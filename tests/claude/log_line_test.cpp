#include "claude/log_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "claude/log_stamp.h"
#include "tests/claude/claude_world.h"

namespace tidewatch {
namespace {

using test::LogEntry;
using test::utc;

// What a reader says of a line, with a copy of what belongs to the reader.
struct ReadLine {
    std::optional<LogLine> line;
    std::string model;
};

ReadLine read(std::string text) {
    const auto length = text.size();
    text.append(LogLineReader::padding, 'x');
    LogLineReader reader;
    ReadLine result{reader.read(std::string_view(text).substr(0, length)), {}};
    if (result.line) result.model = result.line->model;
    return result;
}

TokenCounts tokens(const std::string& usage) {
    const auto result = read(R"({"timestamp":"2026-03-01T10:15:30Z","usage":)" + usage + "}");
    return result.line ? result.line->tokens : TokenCounts{};
}

bool counts(const std::string& text) {
    return read(text).line.has_value();
}

TEST(LogLine, HoldsDateTokensAndModel) {
    const auto result = read(LogEntry{"2026-03-01T10:15:30.123Z", 1, 2, 3, 4, "claude-opus-4-7"}.line());
    ASSERT_TRUE(result.line);
    EXPECT_EQ(result.line->date, utc("2026-03-01T10:15:30"));
    EXPECT_EQ(result.line->tokens, (TokenCounts{1, 2, 3, 4}));
    EXPECT_EQ(result.model, "claude-opus-4-7");
}

TEST(LogLine, WithoutMessageTheTopLevelHoldsUsageAndModel) {
    const auto result =
        read(R"({"timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7},"model":"m"})");
    ASSERT_TRUE(result.line);
    EXPECT_EQ(result.line->tokens.output, 7);
    EXPECT_EQ(result.model, "m");
}

TEST(LogLine, AMessageThatIsAStringLeavesTheTopLevel) {
    const auto result = read(
        R"({"timestamp":"2026-03-01T10:15:30Z","message":"hi","usage":{"output_tokens":7},"model":"m"})");
    ASSERT_TRUE(result.line);
    EXPECT_EQ(result.line->tokens.output, 7);
    EXPECT_EQ(result.model, "m");
}

TEST(LogLine, AMessageHidesUsageAndModelOfTheTopLevel) {
    EXPECT_FALSE(counts(
        R"({"timestamp":"2026-03-01T10:15:30Z","message":{},"usage":{"output_tokens":7},"model":"m"})"));
    const auto result =
        read(R"({"timestamp":"2026-03-01T10:15:30Z","message":{"usage":{"output_tokens":7}},"model":"m"})");
    EXPECT_EQ(result.model, "unknown");
}

TEST(LogLine, AModelThatIsNoStringIsUnknown) {
    EXPECT_EQ(read(R"({"timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7},"model":5})").model,
              "unknown");
}

TEST(LogLine, CacheTokensAloneDoNotCount) {
    EXPECT_FALSE(counts(LogEntry{"2026-03-01T10:15:30Z", 0, 0, 5, 5}.line()));
}

TEST(LogLine, OneInputOrOneOutputTokenCounts) {
    EXPECT_TRUE(counts(LogEntry{"2026-03-01T10:15:30Z", 0, 1}.line()));
    EXPECT_TRUE(counts(LogEntry{"2026-03-01T10:15:30Z", 1, 0}.line()));
    EXPECT_FALSE(counts(LogEntry{"2026-03-01T10:15:30Z", 0, 0}.line()));
    EXPECT_TRUE(counts(LogEntry{"2026-03-01T10:15:30Z", -5, 1}.line()));
    EXPECT_FALSE(counts(LogEntry{"2026-03-01T10:15:30Z", -5, 0}.line()));
}

TEST(LogLine, CreatedAtIsTheDateWithoutATimestamp) {
    const auto usage = std::string(R"("usage":{"output_tokens":7}})");
    EXPECT_EQ(read(R"({"created_at":"2026-03-02T10:15:30Z",)" + usage).line->date,
              utc("2026-03-02T10:15:30"));
    EXPECT_EQ(read(R"({"timestamp":17,"created_at":"2026-03-02T10:15:30Z",)" + usage).line->date,
              utc("2026-03-02T10:15:30"));
    EXPECT_EQ(read(R"({"timestamp":"2026-03-01T10:15:30Z","created_at":"2026-03-02T10:15:30Z",)" + usage)
                  .line->date,
              utc("2026-03-01T10:15:30"));
}

TEST(LogLine, ATimestampThatIsAStringWithoutADateHidesCreatedAt) {
    EXPECT_FALSE(
        counts(R"({"timestamp":"soon","created_at":"2026-03-02T10:15:30Z","usage":{"output_tokens":7}})"));
}

TEST(LogLine, ADateInTheMessageIsNotRead) {
    EXPECT_FALSE(counts(R"({"message":{"timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7}}})"));
}

TEST(LogLine, UsageDeeperInTheMessageDoesNotCount) {
    EXPECT_FALSE(counts(
        R"({"timestamp":"2026-03-01T10:15:30Z","message":{"content":[{"usage":{"output_tokens":7}}]}})"));
    EXPECT_FALSE(
        counts(R"({"timestamp":"2026-03-01T10:15:30Z","toolUseResult":{"usage":{"output_tokens":7}}})"));
}

TEST(LogLine, UsageThatIsNoObjectDoesNotCount) {
    EXPECT_FALSE(counts(R"({"timestamp":"2026-03-01T10:15:30Z","usage":[7]})"));
    EXPECT_FALSE(counts(R"({"timestamp":"2026-03-01T10:15:30Z","usage":null})"));
}

TEST(LogLine, ATopLevelThatIsNoObjectDoesNotCount) {
    EXPECT_FALSE(counts(R"([{"timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7}}])"));
    EXPECT_FALSE(counts(R"("usage")"));
    EXPECT_FALSE(counts(""));
}

TEST(LogLine, ANumberThatIsNotWrittenAsAnIntegerCountsAsZero) {
    EXPECT_EQ(tokens(R"({"output_tokens":5.0,"input_tokens":1})"), (TokenCounts{1, 0, 0, 0}));
    EXPECT_EQ(tokens(R"({"output_tokens":1e3,"input_tokens":1})"), (TokenCounts{1, 0, 0, 0}));
    EXPECT_EQ(tokens(R"({"output_tokens":"5","input_tokens":1})"), (TokenCounts{1, 0, 0, 0}));
    EXPECT_EQ(tokens(R"({"output_tokens":true,"input_tokens":1})"), (TokenCounts{1, 0, 0, 0}));
}

TEST(LogLine, ANumberOutOfRangeCountsAsZero) {
    EXPECT_EQ(tokens(R"({"output_tokens":9223372036854775807})"), (TokenCounts{0, INT64_MAX, 0, 0}));
    for (const auto* number : {"9223372036854775808", "18446744073709551616",
                               "123456789012345678901234567890", "-9223372036854775809", "1e400", "-1e999"}) {
        EXPECT_EQ(tokens(std::string(R"({"input_tokens":1,"output_tokens":)") + number + "}"),
                  (TokenCounts{1, 0, 0, 0}))
            << number;
    }
}

TEST(LogLine, ANumberOutOfRangeElsewhereLeavesTheLineValid) {
    EXPECT_TRUE(
        counts(R"({"cost":123456789012345678901234567890,"x":[-1E+999,"1e999 \" 99999999999999999999"],)"
               R"("timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7}})"));
}

TEST(LogLine, WhatIsNoNumberIsNoJsonEvenBesideOneOutOfRange) {
    for (const auto* wrong : {"01", "1.", ".5", "-", "+1", "1e", "1e+", "--1", "00", "1.e5"}) {
        EXPECT_FALSE(counts(std::string(R"({"big":123456789012345678901234567890,"wrong":)") + wrong +
                            R"(,"timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7}})"))
            << wrong;
    }
}

TEST(LogLine, OfDuplicateKeysTheLastCounts) {
    EXPECT_EQ(tokens(R"({"output_tokens":5,"output_tokens":6})").output, 6);
    EXPECT_EQ(tokens(R"({"output_tokens":5,"output_tokens":"x","input_tokens":1})").output, 0);
    const auto result =
        read(R"({"timestamp":"2026-03-01T10:15:30Z","message":{"usage":{"output_tokens":5}},"message":1,)"
             R"("usage":{"output_tokens":6}})");
    EXPECT_EQ(result.line->tokens.output, 6);
}

TEST(LogLine, EscapedKeysAreKeys) {
    EXPECT_EQ(read(R"({"timestamp":"2026-03-01T10:15:30Z","\u0075sage":{"output_tok\u0065ns":7}})")
                  .line->tokens.output,
              7);
}

TEST(LogLine, WhatIsNoJsonDoesNotCount) {
    const std::string good = R"({"timestamp":"2026-03-01T10:15:30Z","usage":{"output_tokens":7})";
    EXPECT_TRUE(counts(good + "}"));
    EXPECT_TRUE(counts(good + "}\r"));
    EXPECT_TRUE(counts("  " + good + " } "));
    EXPECT_FALSE(counts(good));
    EXPECT_FALSE(counts(good + "}}"));
    EXPECT_FALSE(counts(good + "} {}"));
    EXPECT_FALSE(counts(good + ",}"));
    EXPECT_FALSE(counts(good + ",\"x\":nul}"));
    EXPECT_FALSE(counts(good + ",\"x\":[1}]}"));
    EXPECT_FALSE(counts(good + ",\"x\":\"\t\"}"));
    EXPECT_FALSE(counts(good + ",\"x\":\"\\q\"}"));
    EXPECT_FALSE(counts(good + ",\"x\":\"\\ud800\"}"));
    EXPECT_FALSE(counts(good + std::string("\0}", 2)));
    EXPECT_FALSE(counts(good + ",\"x\":\"" + std::string(1, '\0') + "\"}"));
}

TEST(LogLine, AByteOrderMarkIsIgnored) {
    EXPECT_TRUE(counts("\xEF\xBB\xBF" + LogEntry{"2026-03-01T10:15:30Z", 1}.line()));
}

TEST(LogLine, WithoutADateDoesNotCount) {
    EXPECT_FALSE(counts(R"({"usage":{"output_tokens":7}})"));
    EXPECT_FALSE(counts(LogEntry{"", 1}.line()));
}

TEST(LogLine, MayBeLongerThanAnyBuffer) {
    const auto filler = std::string(std::size_t(3) << 20, 'x');
    const auto line = R"({"text":")" + filler + R"(","timestamp":"2026-03-01T10:15:30Z",)" +
                      R"("usage":{"output_tokens":7}})";
    EXPECT_TRUE(counts(line));
}

struct StampCase {
    std::string text;
    const char* date;  // null for none
};

TEST(LogStamp, IsCutAtNineteenCharactersAndReadAsUtc) {
    const std::vector<StampCase> cases{
        {"2026-03-01T10:15:30", "2026-03-01T10:15:30"},  {"2026-03-01T10:15:30.123Z", "2026-03-01T10:15:30"},
        {"2026-03-01 10:15:30", "2026-03-01T10:15:30"},  {"2026-03-01 10:15:30+01:00", "2026-03-01T10:15:30"},
        {"2026-03-01T10:15:30é", "2026-03-01T10:15:30"}, {"2024-02-29T00:00:00", "2024-02-29T00:00:00"},
    };
    for (const auto& [text, date] : cases) EXPECT_EQ(parseLogStamp(text), utc(date)) << text;
}

TEST(LogStamp, OfAnyOtherFormIsNoDate) {
    for (const auto* text :
         {"", "2026-03-01", "2026-03-01T10:15:3", "2026-3-01T10:15:30Z", "2026-03-01t10:15:30Z",
          "2026-03-01TT10:15:30", " 2026-03-01T10:15:30", "2026-13-01T10:15:30", "2026-02-29T10:15:30",
          "2026-03-32T10:15:30", "2026-03-00T10:15:30", "2026-03-01T24:00:00", "2026-03-01T10:60:30",
          "2026-03-01T10:15:60", "0000-03-01T10:15:30", "2026/03/01T10:15:30"}) {
        EXPECT_FALSE(parseLogStamp(text)) << text;
    }
}

TEST(LogStamp, WithAnAccentOnItsLastDigitIsNoDate) {
    EXPECT_FALSE(parseLogStamp("2026-03-01T10:15:30\xCC\x81"));
}

}  // namespace
}  // namespace tidewatch
