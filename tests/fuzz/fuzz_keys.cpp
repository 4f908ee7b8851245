// Keys of days and buckets, identifiers and colours in files that may have been edited.

#include <algorithm>
#include <cctype>
#include <string>

#include "base/calendar_day.h"
#include "base/uuid.h"
#include "core/clock_keys.h"
#include "projects/color_hex.h"
#include "tests/fuzz/fuzz_target.h"

namespace tidewatch::fuzz {
namespace {

std::string upperCased(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return std::toupper(c); });
    return result;
}

}  // namespace

void check(std::string_view input) {
    if (const auto day = parseDayKey(input)) {
        require(toDayKey(*day).text() == input, "the key of a key's day is the key");
        const auto next = parseDayKey(toDayKey(*day + std::chrono::days(1)).text());
        require(!next || *next == *day + std::chrono::days(1), "one day follows another");
    }
    if (const auto time = components(BucketKey(std::string(input)))) {
        const auto key = bucketKey(DayKey("2026-01-15"), *time);
        require(components(key) == time, "the time in the key of a time is the time");
    }
    if (const auto id = Uuid::parse(input)) {
        require(id->text() == upperCased(input), "an identifier is written in upper case");
        require(Uuid::parse(id->text()) == id, "an identifier reads back the same");
    }
    if (const auto color = parseColorHex(input)) {
        require(parseColorHex(" " + std::string(input) + "\t") == color,
                "white space around a colour says nothing");
    }
}

}  // namespace tidewatch::fuzz
