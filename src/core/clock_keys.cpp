#include "core/clock_keys.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <vector>

namespace tidewatch {
namespace {

// Splits at the separators, omitting empty parts.
std::vector<std::string_view> pieces(std::string_view text, char separator) {
    std::vector<std::string_view> result;
    while (!text.empty()) {
        const auto piece = text.substr(0, text.find(separator));
        if (!piece.empty()) result.push_back(piece);
        text.remove_prefix(std::min(piece.size() + 1, text.size()));
    }
    return result;
}

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const auto* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

}  // namespace

ClockKeys::ClockKeys(const platform::Clock& clock, const Settings& settings, const DayRule& dayRule)
    : clock_(clock), settings_(settings), dayRule_(dayRule) {}

HourKey ClockKeys::hourKey(Instant instant) const {
    return tidewatch::hourKey(dayRule_.dayKey(instant), timeOnClock(instant).hour);
}

BucketKey ClockKeys::bucketKey(Instant instant) const {
    const auto time = timeOnClock(instant);
    return tidewatch::bucketKey(dayRule_.dayKey(instant),
                                {time.hour, time.minute / minutesPerBucket * minutesPerBucket});
}

std::array<int, hoursPerDay> ClockKeys::hoursOfDay() const {
    std::array<int, hoursPerDay> hours{};
    int next = settings_.dayStartHour();
    for (auto& hour : hours) hour = next++ % hoursPerDay;
    return hours;
}

std::array<HourKey, hoursPerDay> ClockKeys::hourKeys(const DayKey& day) const {
    std::array<HourKey, hoursPerDay> keys;
    std::ranges::transform(hoursOfDay(), keys.begin(),
                           [&](int hour) { return tidewatch::hourKey(day, hour); });
    return keys;
}

std::array<BucketKey, hoursPerDay * bucketsPerHour> ClockKeys::bucketKeys(const DayKey& day) const {
    std::array<BucketKey, hoursPerDay * bucketsPerHour> keys;
    auto next = keys.begin();
    for (const int hour : hoursOfDay()) {
        for (int minute = 0; minute < 60; minute += minutesPerBucket) {
            *next++ = tidewatch::bucketKey(day, {hour, minute});
        }
    }
    return keys;
}

CivilTime ClockKeys::timeOnClock(Instant instant) const {
    return civilTime(instant, clock_.timeZone()->utcOffset(instant));
}

HourKey hourKey(const DayKey& day, int hour) {
    return HourKey(fmt::format("{} {:02}", day.text(), hour));
}

BucketKey bucketKey(const DayKey& day, ClockMinute time) {
    return BucketKey(fmt::format("{} {:02}:{:02}", day.text(), time.hour, time.minute));
}

std::optional<ClockMinute> components(const BucketKey& key) {
    const auto words = pieces(key.text(), ' ');
    if (words.empty()) return std::nullopt;
    const auto numbers = pieces(words.back(), ':');
    if (numbers.size() != 2) return std::nullopt;
    const auto hour = wholeNumber(numbers[0]);
    const auto minute = wholeNumber(numbers[1]);
    if (!hour || !minute) return std::nullopt;
    return ClockMinute{*hour, *minute};
}

}  // namespace tidewatch
