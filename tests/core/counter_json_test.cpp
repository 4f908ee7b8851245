#include "core/counter_json.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

#include "core/json_writer.h"

namespace tidewatch {
namespace {

using namespace std::string_literals;

// `text` read and written again; nullopt if it is rejected.
std::optional<std::string> reread(std::string text, std::size_t depth) {
    const auto record = parseCounters(std::move(text), depth);
    return record ? std::optional(serializeCounters(*record)) : std::nullopt;
}

void set(CounterRecord& record, std::initializer_list<std::string_view> path, std::int64_t seconds) {
    record.set(std::span(path.begin(), path.size()), Seconds(seconds));
}

TEST(CounterJson, OneLevelIsWrittenExactly) {
    CounterRecord record(1);
    set(record, {"2026-01-15"}, 1840);
    set(record, {"2026-01-14"}, 20013);
    EXPECT_EQ(serializeCounters(record), "{\n  \"2026-01-14\" : 20013,\n  \"2026-01-15\" : 1840\n}");
}

TEST(CounterJson, TwoLevelsAreWrittenExactly) {
    CounterRecord record(2);
    set(record, {"2026-01-14", "xterm"}, 5);
    set(record, {"2026-01-14", "firefox"}, 60);
    set(record, {"2026-01-15", "firefox"}, 1);
    EXPECT_EQ(serializeCounters(record), R"({
  "2026-01-14" : {
    "firefox" : 60,
    "xterm" : 5
  },
  "2026-01-15" : {
    "firefox" : 1
  }
})");
}

TEST(CounterJson, ThreeLevelsAreWrittenExactly) {
    CounterRecord record(3);
    set(record, {"2026-01-15", "B", "xterm"}, 2);
    set(record, {"2026-01-15", "A", "xterm"}, 1);
    EXPECT_EQ(serializeCounters(record), R"({
  "2026-01-15" : {
    "A" : {
      "xterm" : 1
    },
    "B" : {
      "xterm" : 2
    }
  }
})");
}

TEST(CounterJson, AnEmptyObjectIsABraceAnEmptyLineAndABrace) {
    EXPECT_EQ(serializeCounters(CounterRecord(1)), "{\n\n}");
    EXPECT_EQ(serializeCounters(CounterRecord(3)), "{\n\n}");
    EXPECT_EQ(reread(R"({"a":{},"b":{"c":{}}})", 3), R"({
  "a" : {

  },
  "b" : {
    "c" : {

    }
  }
})");
}

TEST(CounterJson, KeysAreEscapedWhereTheyMustBeAndSlashesToo) {
    CounterRecord record(1);
    set(record, {"a\"b\\c/d\b\f\n\r\t\x01\x1F\x7F"}, 1);
    EXPECT_EQ(serializeCounters(record), "{\n  \"a\\\"b\\\\c\\/d\\b\\f\\n\\r\\t\\u0001\\u001f\x7F\" : 1\n}");
}

TEST(CounterJson, KeysBelowTheFirstLevelAreEscapedTheSameWay) {
    CounterRecord record(2);
    set(record, {"d", "a/\"\n"}, 1);
    EXPECT_EQ(serializeCounters(record), "{\n  \"d\" : {\n    \"a\\/\\\"\\n\" : 1\n  }\n}");
}

TEST(CounterJson, AKeyIsEscapedWhereverACharacterStandsInIt) {
    for (std::size_t size = 1; size <= 20; ++size) {
        for (std::size_t place = 0; place < size; ++place) {
            for (int c = 0; c < 0x80; ++c) {
                std::string key(size, 'k');
                key[place] = static_cast<char>(c);
                CounterRecord record(1);
                set(record, {key}, 1);
                std::string escaped;
                appendJsonEscaped(escaped, key);
                ASSERT_EQ(serializeCounters(record), "{\n  \"" + escaped + "\" : 1\n}")
                    << size << " " << place;
            }
        }
    }
}

TEST(CounterJson, NonAsciiIsKept) {
    CounterRecord record(1);
    set(record, {"ca\u00F1a \u2028\U0001F30A"}, 1);
    EXPECT_EQ(serializeCounters(record), "{\n  \"ca\u00F1a \u2028\U0001F30A\" : 1\n}");
}

TEST(CounterJson, KeysAreSortedAsPlainBytes) {
    CounterRecord record(1);
    for (const auto* key : {"b", "a", "B", "\u00E1", "a10", "a2", ""}) set(record, {key}, 1);
    EXPECT_EQ(serializeCounters(record),
              "{\n  \"\" : 1,\n  \"B\" : 1,\n  \"a\" : 1,\n  \"a10\" : 1,\n  \"a2\" : 1,\n  \"b\" : 1,\n"
              "  \"\u00E1\" : 1\n}");
}

TEST(CounterJson, EveryIntegerOf64BitsIsWritten) {
    CounterRecord record(1);
    set(record, {"max"}, std::numeric_limits<std::int64_t>::max());
    set(record, {"min"}, std::numeric_limits<std::int64_t>::min());
    set(record, {"edge"}, std::int64_t(1) << 31);
    EXPECT_EQ(serializeCounters(record),
              "{\n  \"edge\" : 2147483648,\n  \"max\" : 9223372036854775807,\n"
              "  \"min\" : -9223372036854775808\n}");
}

TEST(CounterJson, CountersOfALifetimeAreReadBackAndNegativeOnesToo) {
    CounterRecord record(1);
    set(record, {"most"}, maxCounter);
    set(record, {"least"}, -maxCounter);
    set(record, {"zero"}, 0);
    const auto text = serializeCounters(record);
    EXPECT_EQ(text, "{\n  \"least\" : -2147483647,\n  \"most\" : 2147483647,\n  \"zero\" : 0\n}");
    EXPECT_EQ(reread(text, 1), text);
}

TEST(CounterJson, NoSumOverWhatAFileCanHoldOverflows) {
    constexpr std::uint64_t maxCounters = std::uint64_t(1) << 32;
    static_assert(maxCounter <= std::numeric_limits<std::int64_t>::max() / maxCounters);
}

TEST(CounterJson, AKeyWithANulIsWrittenAndReadBack) {
    CounterRecord record(2);
    set(record, {"d", "a\0b"s}, 1);
    const auto text = serializeCounters(record);
    EXPECT_EQ(text, "{\n  \"d\" : {\n    \"a\\u0000b\" : 1\n  }\n}");
    EXPECT_EQ(reread(text, 2), text);
}

// Keeps the pieces; accepts a limited number of them.
class PieceSink final : public platform::ByteSink {
public:
    explicit PieceSink(std::size_t capacity) : capacity_(capacity) {}

    bool append(std::string_view piece) override {
        pieces.emplace_back(piece);
        return pieces.size() < capacity_;
    }

    std::vector<std::string> pieces;

private:
    std::size_t capacity_;
};

// A record larger than a piece, with a key and a name that are each longer than a piece.
CounterRecord longRecord() {
    CounterRecord record(2);
    for (int day = 0; day < 5000; ++day) {
        const auto key = std::to_string(10'000 + day);
        for (const auto* name : {"firefox", "mpv", "xterm"}) set(record, {key, name}, day);
    }
    set(record, {std::string(300'000, 'k'), "xterm"}, 1);
    set(record, {"z", std::string(300'000, 'n')}, 2);
    return record;
}

TEST(CounterJson, ALongRecordComesInPiecesThatTogetherAreItsText) {
    std::string expected = "{";
    for (int day = 0; day < 5000; ++day) {
        const auto seconds = std::to_string(day);
        expected += "\n  \"" + std::to_string(10'000 + day) + "\" : {\n    \"firefox\" : " + seconds +
                    ",\n    \"mpv\" : " + seconds + ",\n    \"xterm\" : " + seconds + "\n  },";
    }
    expected += "\n  \"" + std::string(300'000, 'k') +
                "\" : {\n    \"xterm\" : 1\n  },\n  \"z\" : {\n    \"" + std::string(300'000, 'n') +
                "\" : 2\n  }\n}";
    PieceSink sink(1'000'000);
    serializeCounters(longRecord(), sink);
    EXPECT_GT(sink.pieces.size(), 4U);
    std::string text;
    for (const auto& piece : sink.pieces) text += piece;
    EXPECT_TRUE(text == expected);
    EXPECT_TRUE(serializeCounters(longRecord()) == expected);
}

TEST(CounterJson, NothingIsAppendedAfterTheSinkHasStopped) {
    PieceSink sink(2);
    serializeCounters(longRecord(), sink);
    EXPECT_EQ(sink.pieces.size(), 2U);
}

TEST(CounterJson, AnyJsonOfThisStructureIsParsed) {
    EXPECT_EQ(reread("\xEF\xBB\xBF \t\r\n{ \"b\":2,\"\\u0061\\/\" : 1 } \n", 1),
              "{\n  \"a\\/\" : 1,\n  \"b\" : 2\n}");
}

TEST(CounterJson, ANumberIsParsedByValueNotByNotation) {
    EXPECT_EQ(reread(R"({"a":60.0,"b":6e1,"c":-0,"d":-0.0,"e":1.5e1})", 1),
              "{\n  \"a\" : 60,\n  \"b\" : 60,\n  \"c\" : 0,\n  \"d\" : 0,\n  \"e\" : 15\n}");
}

TEST(CounterJson, OfDuplicateKeysTheLastWinsWithItsOwnMembersOnly) {
    EXPECT_EQ(reread(R"({"a":1,"b":2,"a":3})", 1), "{\n  \"a\" : 3,\n  \"b\" : 2\n}");
    EXPECT_EQ(reread(R"({"a":{"x":1},"\u0061":{"y":2,"y":3}})", 2), "{\n  \"a\" : {\n    \"y\" : 3\n  }\n}");
}

TEST(CounterJson, KeysInAnyOrderAreParsed) {
    EXPECT_EQ(reread(R"({"b":{"z":{"2":2,"1":1},"y":{"3":3}},"a":{"x":{}}})", 3), R"({
  "a" : {
    "x" : {

    }
  },
  "b" : {
    "y" : {
      "3" : 3
    },
    "z" : {
      "1" : 1,
      "2" : 2
    }
  }
})");
}

struct Refused {
    const char* name;
    std::size_t depth;
    std::string_view text;
};

class RefusedTexts : public testing::TestWithParam<Refused> {};

TEST_P(RefusedTexts, AreRejected) {
    EXPECT_EQ(reread(std::string(GetParam().text), GetParam().depth), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    CounterJson, RefusedTexts,
    testing::Values(
        Refused{"Empty", 1, ""}, Refused{"Blank", 1, " \n"}, Refused{"Array", 1, "[]"},
        Refused{"ArrayOfObjects", 1, R"([{"a":1}])"}, Refused{"Number", 1, "7"}, Refused{"Text", 1, R"("a")"},
        Refused{"Null", 1, "null"}, Refused{"Garbled", 1, "\x01\x02garbage"},
        Refused{"Unclosed", 1, R"({"a":1)"}, Refused{"TrailingComma", 1, R"({"a":1,})"},
        Refused{"MissingComma", 1, R"({"a":1 "b":2})"}, Refused{"UnquotedKey", 1, "{a:1}"},
        Refused{"SomethingBehind", 1, R"({"a":1}x)"}, Refused{"TwoObjects", 1, R"({"a":1}{"b":1})"},
        Refused{"Fraction", 1, R"({"a":1.5})"}, Refused{"TooLarge", 1, R"({"a":2147483648})"},
        Refused{"TooSmall", 1, R"({"a":-2147483648})"},
        Refused{"TooLargeAsAFraction", 1, R"({"a":2147483648.0})"},
        Refused{"TooLargeAmongGood", 2, R"({"a":{"x":1},"b":{"x":9223372036854775807,"y":2}})"},
        Refused{"Largest64Bits", 1, R"({"a":9223372036854775807})"},
        Refused{"Smallest64Bits", 1, R"({"a":-9223372036854775808})"},
        Refused{"Beyond64Bits", 1, R"({"a":9223372036854775808})"},
        Refused{"Below64Bits", 1, R"({"a":-9223372036854775809})"},
        Refused{"MuchTooLarge", 1, R"({"a":1e30})"},
        Refused{"BeyondAnyNumber", 1, R"({"a":123456789012345678901234567890})"},
        Refused{"LeadingZero", 1, R"({"a":01})"}, Refused{"True", 1, R"({"a":true})"},
        Refused{"NullInside", 1, R"({"a":1,"b":null})"}, Refused{"TextInside", 1, R"({"a":"1"})"},
        Refused{"ArrayInside", 1, R"({"a":[1]})"}, Refused{"TooDeep", 1, R"({"a":{"b":1}})"},
        Refused{"EmptyTooDeep", 1, R"({"a":{}})"}, Refused{"TooShallow", 2, R"({"a":1})"},
        Refused{"TooShallowAmongGood", 2, R"({"a":{"x":1},"b":2})"},
        Refused{"TooDeepForTwo", 2, R"({"a":{"b":{"c":1}}})"},
        Refused{"TooShallowForThree", 3, R"({"a":{"b":1}})"}, Refused{"NotUtf8", 1, "{\"caf\xE9\":1}"},
        Refused{"LoneSurrogate", 1, R"({"\ud800":1})"}, Refused{"RawLineBreakInAKey", 1, "{\"a\nb\":1}"},
        Refused{"Nul", 1, std::string_view("{\"a\":1}\0", 8)}),
    [](const auto& instance) { return instance.param.name; });

TEST(CounterJson, EveryTruncationIsRejected) {
    CounterRecord record(3);
    set(record, {"2026-01-14", "P/1", "firefox"}, 20013);
    set(record, {"2026-01-15", "ca\u00F1a", "org.gnome.Terminal"}, 60);
    set(record, {"2026-01-15", "ca\u00F1a", "xterm"}, 1);
    const auto text = serializeCounters(record);
    ASSERT_EQ(reread(text, 3), text);
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_EQ(reread(text.substr(0, length), 3), std::nullopt) << length;
    }
}

TEST(CounterJson, ExcessiveNestingIsRejected) {
    std::string text;
    for (int i = 0; i < 100'000; ++i) text += R"({"a":)";
    EXPECT_EQ(reread(text, 3), std::nullopt);
}

}  // namespace
}  // namespace tidewatch
