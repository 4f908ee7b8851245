#include "analysis/longest_session.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "base/calendar_day.h"
#include "core/clock_keys.h"
#include "core/local_time.h"

namespace tidewatch {
namespace {

constexpr std::chrono::seconds bucketLength(bucketSize.count());
constexpr Seconds minBusy(bucketSize.count() / 2);

struct BusyBucket {
    Instant start;
    Seconds seconds;
};

// Returns nullopt unless there is a two-digit number below `limit` at this place of the key.
std::optional<int> twoDigits(std::string_view key, std::size_t at, int limit) {
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    const char tens = key[at];
    const char ones = key[at + 1];
    if (!isDigit(tens) || !isDigit(ones)) return std::nullopt;
    const int value = (tens - '0') * 10 + (ones - '0');
    return value < limit ? std::optional(value) : std::nullopt;
}

// Reads keys of the form "yyyy-MM-dd HH:mm"; what depends on the day only is computed once for all its
// buckets.
class BucketKeyReader final {
public:
    explicit BucketKeyReader(const platform::TimeZone& zone) : zone_(zone), offsets_(zone) {}

    std::optional<Instant> instantOf(std::string_view key) {
        if (key.size() != 16 || key[10] != ' ' || key[13] != ':') return std::nullopt;
        const auto hour = twoDigits(key, 11, hoursPerDay);
        const auto minute = twoDigits(key, 14, 60);
        if (!std::equal(dayText_.begin(), dayText_.end(), key.begin())) turnTo(key);
        if (!day_ || !hour || !minute) return std::nullopt;
        const auto time = std::chrono::minutes(*hour * 60 + *minute);
        return midnight_ ? *midnight_ + time : tidewatch::instantOf(*day_ + time, zone_);
    }

private:
    void turnTo(std::string_view key) {
        key.copy(dayText_.data(), dayText_.size());
        day_.reset();
        midnight_.reset();
        const auto day = parseDayKey({dayText_.data(), dayText_.size()});
        if (!day) return;
        day_ = std::chrono::local_days(day->time_since_epoch());
        if (const auto offset = offsets_.allDay(*day_)) midnight_ = *day - *offset;
    }

    const platform::TimeZone& zone_;
    DayOffsets offsets_;
    std::array<char, 10> dayText_{};
    std::optional<std::chrono::local_days> day_;
    std::optional<Instant> midnight_;  // if times of the day can be added to it
};

// By the day, which is the part before the first space, and a prefix of the key.
bool isBefore(std::string_view key, std::string_view cutoffKey) {
    return !cutoffKey.empty() && (key < cutoffKey || key.substr(0, key.find(' ')) < cutoffKey);
}

std::vector<BusyBucket> busyBuckets(const UsageSnapshot& minutes, std::string_view cutoffKey,
                                    const platform::TimeZone& zone) {
    BucketKeyReader reader(zone);
    UsageSnapshot::Reader apps(minutes);
    std::vector<BusyBucket> buckets;
    buckets.reserve(minutes.keyCount());
    for (UsageSnapshot::Index i = 0; i < minutes.keyCount(); ++i) {
        const auto key = minutes.key(i);
        if (isBefore(key, cutoffKey)) continue;
        Seconds total;
        apps.forEachApp(i, [&](std::uint32_t, Seconds seconds) { total += seconds; });
        if (total < minBusy) continue;
        if (const auto start = reader.instantOf(key)) buckets.push_back({*start, total});
    }
    // Keys are ascending, and so are their instants except around a change of UTC offset.
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
