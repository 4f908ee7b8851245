#include "analysis/longest_session.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "base/calendar_day.h"
#include "core/clock_keys.h"
#include "core/local_time.h"

namespace tidewatch {
namespace {

constexpr std::chrono::seconds bucketLength(bucketSize.count());
constexpr Seconds leastBusy(bucketSize.count() / 2);

struct BusyBucket {
    Instant start;
    Seconds seconds;
};

std::optional<int> twoDigits(std::string_view text, int limit) {
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    if (!isDigit(text[0]) || !isDigit(text[1])) return std::nullopt;
    const int value = (text[0] - '0') * 10 + (text[1] - '0');
    return value < limit ? std::optional(value) : std::nullopt;
}

// Of "yyyy-MM-dd HH:mm".
std::optional<WallTime> wallTimeOf(std::string_view key) {
    if (key.size() != 16 || key[10] != ' ' || key[13] != ':') return std::nullopt;
    const auto day = dayOfKey(key.substr(0, 10));
    const auto hour = twoDigits(key.substr(11, 2), hoursADay);
    const auto minute = twoDigits(key.substr(14, 2), 60);
    if (!day || !hour || !minute) return std::nullopt;
    return std::chrono::local_days(day->time_since_epoch()) + std::chrono::hours(*hour) +
           std::chrono::minutes(*minute);
}

std::string_view dayPart(std::string_view key) {
    const auto blank = key.find(' ');
    return blank == std::string_view::npos ? key : key.substr(0, blank);
}

std::vector<BusyBucket> busyBuckets(const UsageSnapshot& minutes, std::string_view cutoffKey,
                                    const platform::TimeZone& zone) {
    InstantReader reader(zone);
    std::vector<BusyBucket> buckets;
    for (UsageSnapshot::Index i = 0; i < minutes.keyCount(); ++i) {
        const auto key = minutes.key(i);
        if (dayPart(key) < cutoffKey) continue;
        Seconds total;
        minutes.forEachApp(i, [&](std::uint32_t, Seconds seconds) { total += seconds; });
        if (total < leastBusy) continue;
        if (const auto time = wallTimeOf(key)) buckets.push_back({reader.instantOf(*time), total});
    }
    // Keys ascend, and so do their instants but for the nights in which the clock changes.
    if (!std::ranges::is_sorted(buckets, {}, &BusyBucket::start)) {
        std::ranges::stable_sort(buckets, {}, &BusyBucket::start);
    }
    return buckets;
}

}  // namespace

std::optional<LongestSession> longestSession(const UsageSnapshot& minutes, std::string_view cutoffKey,
                                             const platform::TimeZone& zone) {
    std::optional<LongestSession> best;
    LongestSession run;
    std::optional<Instant> previous;
    for (const auto& bucket : busyBuckets(minutes, cutoffKey, zone)) {
        const bool follows = previous && bucket.start - *previous == bucketLength;
        if (!follows) run = {Seconds(), bucket.start, bucket.start};
        run.seconds += bucket.seconds;
        run.end = bucket.start + std::chrono::seconds(std::min(bucket.seconds, bucketSize).count());
        if (!best || run.seconds > best->seconds) best = run;
        previous = bucket.start;
    }
    return best;
}

}  // namespace tidewatch
