#include "analysis/hour_insights.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include "classification/productivity_score.h"

namespace tidewatch {
namespace {

constexpr Seconds minPeak(60);
constexpr Seconds minClassifiedOfDay(300);

struct DayAndHour {
    std::string_view day;
    int hour;
};

// A key is a day and an integer, separated by a space.
std::optional<DayAndHour> dayAndHourOf(std::string_view key) {
    const auto takePiece = [&key] {
        const auto* begin = std::ranges::find_if(key, [](char character) { return character != ' '; });
        const auto* end = std::find(begin, key.end(), ' ');
        key = {end, key.end()};
        return std::string_view(begin, end);
    };
    const auto day = takePiece();
    auto number = takePiece();
    if (number.empty() || !takePiece().empty()) return std::nullopt;
    if (number.size() > 1 && number.front() == '+' && number[1] != '-') number.remove_prefix(1);
    int hour = 0;
    const auto* end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, hour);
    if (error != std::errc() || stop != end || hour < 0 || hour >= hoursPerDay) return std::nullopt;
    return DayAndHour{day, hour};
}

using TierSeconds = std::array<Seconds, 4>;

std::size_t indexOf(Tier tier) {
    return static_cast<std::size_t>(tier);
}

struct BusiestHour {
    int hour = 0;
    Seconds seconds;
};

struct DayOfHours {
    Seconds productive;
    Seconds distracting;
    std::optional<BusiestHour> busiest;

    void add(int hour, const TierSeconds& seconds, Seconds total) {
        productive += seconds[indexOf(Tier::productive)];
        distracting += seconds[indexOf(Tier::distracting)];
        if (!busiest || total > busiest->seconds) busiest = {hour, total};
    }
};

using Days = std::map<std::string_view, DayOfHours>;

class HourReader final {
public:
    HourReader(const UsageSnapshot& hours, const CategoryStore& categories) : hours_(hours), apps_(hours) {
        tiers_.reserve(hours.appCount());
        for (std::uint32_t app = 0; app < hours.appCount(); ++app) {
            tiers_.push_back(indexOf(categories.tier(AppId(std::string(hours.app(app))))));
        }
    }

    Days read(std::string_view cutoffKey, std::array<Seconds, hoursPerDay>& histogram) {
        Days days;
        auto today = days.end();
        for (UsageSnapshot::Index i = 0; i < hours_.keyCount(); ++i) {
            const auto key = dayAndHourOf(hours_.key(i));
            if (!key || key->day < cutoffKey) continue;
            // The hours of a day are adjacent, unless a key is malformed.
            if (today == days.end() || today->first != key->day) {
                today = days.try_emplace(days.end(), key->day);
            }
            const auto seconds = byTier(i);
            const auto total = std::accumulate(seconds.begin(), seconds.end(), Seconds());
            histogram[static_cast<std::size_t>(key->hour)] += total;
            today->second.add(key->hour, seconds, total);
        }
        return days;
    }

private:
    [[nodiscard]] TierSeconds byTier(UsageSnapshot::Index hour) {
        TierSeconds seconds{};
        apps_.forEachApp(hour, [&](std::uint32_t app, Seconds ofApp) { seconds[tiers_[app]] += ofApp; });
        return seconds;
    }

    const UsageSnapshot& hours_;
    UsageSnapshot::Reader apps_;
    std::vector<std::size_t> tiers_;  // of each application, looked up once
};

void findPeakHour(Insights& insights) {
    const auto& histogram = insights.hourHistogram;
    const auto* peak = std::ranges::max_element(histogram);
    if (*peak <= Seconds()) return;
    insights.peakHour = static_cast<int>(peak - histogram.begin());
    insights.peakHourSeconds = *peak;
}

void findAveragePeakHour(const Days& days, Insights& insights) {
    double sum = 0;
    int count = 0;
    for (const auto& [key, day] : days) {
        if (!day.busiest || day.busiest->seconds < minPeak) continue;
        sum += day.busiest->hour;
        ++count;
    }
    if (count > 0) insights.avgPeakHour = sum / count;
}

void findBestScore(const Days& days, Insights& insights) {
    for (const auto& [key, day] : days) {
        if (day.productive + day.distracting < minClassifiedOfDay) continue;
        const auto score = productiveShare(day.productive, day.distracting);
        if (score <= insights.bestScore) continue;
        insights.bestScore = score;
        insights.bestScoreDayKey = DayKey(std::string(key));
    }
}

}  // namespace

void addHourInsights(const UsageSnapshot& hours, std::string_view cutoffKey, const CategoryStore& categories,
                     Insights& insights) {
    const auto days = HourReader(hours, categories).read(cutoffKey, insights.hourHistogram);
    findPeakHour(insights);
    findAveragePeakHour(days, insights);
    findBestScore(days, insights);
}

}  // namespace tidewatch
