// The engine compared with a slow but simple computation on maps of strings, over random records that include
// clock changes.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/insights_engine.h"
#include "platform/fake/fake_time_zone.h"
#include "tests/support/classification_fixture.h"
#include "tools/support/random.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

using Counters = std::map<std::string, int>;
using NestedCounters = std::map<std::string, Counters>;

std::string dayText(Instant instant, const platform::TimeZone& zone) {
    const auto time = civilTime(instant, zone.utcOffset(instant));
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(time.date.year()),
                       static_cast<unsigned>(time.date.month()), static_cast<unsigned>(time.date.day()));
}

std::string timeText(Instant instant, const platform::TimeZone& zone) {
    const auto time = civilTime(instant, zone.utcOffset(instant));
    return fmt::format("{} {:02}:{:02}", dayText(instant, zone), time.hour, time.minute);
}

std::string described(const Insights& insights) {
    std::string text = fmt::format(
        "{} total {} active {} avg {} best {} {} peak {} {} avgPeak {} score {} {} first {} days {}",
        rawValue(insights.range), insights.totalSeconds.count(), insights.activeDays,
        insights.avgPerActiveDay.count(), insights.bestDayKey.value_or(DayKey("-")).text(),
        insights.bestDaySeconds.count(), insights.peakHour.value_or(-1), insights.peakHourSeconds.count(),
        insights.avgPeakHour.value_or(-1), insights.bestScore,
        insights.bestScoreDayKey.value_or(DayKey("-")).text(),
        insights.firstDayKey.value_or(DayKey("-")).text(), insights.rangeDays);
    if (insights.longest) {
        text += fmt::format(" longest {} from {} to {}", insights.longest->seconds.count(),
                            insights.longest->start.time_since_epoch().count(),
                            insights.longest->end.time_since_epoch().count());
    }
    for (const auto seconds : insights.hourHistogram) text += fmt::format(" {}", seconds.count());
    return text;
}

// The local times of some weeks around an instant.
struct Almanac {
    Almanac(Instant now, const platform::TimeZone& zone) {
        const auto first = floor<minutes>(now) - floor<minutes>(now).time_since_epoch() % 5min;
        for (auto at = first - std::chrono::days(60); at < first + std::chrono::days(10); at += 5min) {
            times.try_emplace(timeText(at, zone), at);
            days.insert(dayText(at, zone));
        }
    }

    std::map<std::string, Instant> times;  // the first if a clock shows it twice
    std::set<std::string> days;
};

struct Place {
    const char* name;
    std::shared_ptr<const platform::TimeZone> zone;
    Instant now;
    const char* oddDay;  // on which the clock changes, if it does
};

std::vector<Place> places() {
    return {
        {"Madrid, spring", platform::madridZone(), sys_days(2026y / 4 / 3) + 10h + 7min, "2026-03-29"},
        {"Madrid, autumn", platform::madridZone(), sys_days(2026y / 10 / 27) + 22h + 30min, "2026-10-25"},
        {"Mexico City, spring", platform::mexicoCityZone(), sys_days(2022y / 4 / 6) + 4h, "2022-04-03"},
        {"Mexico City, autumn", platform::mexicoCityZone(), sys_days(2022y / 11 / 2) + 15h, "2022-10-30"},
        {"Kathmandu", platform::fixedZone(5h + 45min), sys_days(2026y / 1 / 15) + 9h, "2026-01-12"},
    };
}

// A record of some weeks around an instant, as maps of strings.
struct Record {
    Counters days;
    NestedCounters hours;
    NestedCounters minutes;
};

class RecordMaker final {
public:
    RecordMaker(unsigned seed, const Place& place)
        : random_(seed), now_(place.now), zone_(*place.zone), oddDay_(place.oddDay) {}

    Record make() {
        for (auto at = now_ - std::chrono::days(random_.between(1, 45)); at < now_ + std::chrono::days(2);
             at += 10min) {
            if (random_.onceIn(40)) working_ = !working_;
            if (working_ || random_.onceIn(20)) book(at);
        }
        addOddities();
        return record_;
    }

private:
    // Keys come from instants, so that a night in which the clock changes skips some and repeats others.
    void book(Instant at) {
        constexpr std::array apps{"com.apple.dt.Xcode", "com.netflix.Netflix", "com.spotify.client",
                                  "org.example.Unknown", "com.figma.Desktop"};
        constexpr std::array counts{0, 1, 59, 60, 150, 299, 300, 301, 600, 600, 700};
        const auto day = dayText(at, zone_);
        auto bucket = timeText(at, zone_);
        bucket.back() = '0';
        const std::string app = random_.oneOf(apps);
        const int seconds = random_.oneOf(counts);
        record_.days[day] += seconds;
        record_.hours[bucket.substr(0, 13)][app] += seconds;
        record_.minutes[bucket][app] += seconds;
    }

    void addOddities() {
        constexpr std::array hours{"{}  09", " {} 10", "{} 24", "{}", "x{} 5", "{} -1", "{} 7 8"};
        constexpr std::array minutes{"{}", "{} 24:00", "{} 1:00", "x{}", "{} 02:30", "{} 02:40", "{} 02:50"};
        const auto key = [&](const char* shape) { return fmt::format(fmt::runtime(shape), oddDay_); };
        for (const auto* shape : hours) {
            if (random_.onceIn(3)) record_.hours[key(shape)]["com.apple.dt.Xcode"] = random_.between(0, 5000);
        }
        for (const auto* shape : minutes) {
            if (random_.onceIn(3))
                record_.minutes[key(shape)]["com.apple.dt.Xcode"] = random_.between(200, 700);
        }
        if (random_.onceIn(5)) record_.minutes["2026-02-30 10:00"]["com.spotify.client"] = 600;
        if (random_.onceIn(5)) record_.days["nunca"] = random_.between(0, 90);
    }

    Random random_;
    const Instant now_;
    const platform::TimeZone& zone_;
    const std::string oddDay_;
    bool working_ = false;
    Record record_;
};

std::string jsonOf(const Counters& counters) {
    std::string text = "{";
    for (const auto& [key, seconds] : counters) {
        text += fmt::format("{}\"{}\":{}", text.size() > 1 ? "," : "", key, seconds);
    }
    return text + "}";
}

std::string jsonOf(const NestedCounters& counters) {
    std::string text = "{";
    for (const auto& [key, inner] : counters) {
        text += fmt::format("{}\"{}\":{}", text.size() > 1 ? "," : "", key, jsonOf(inner));
    }
    return text + "}";
}

// Each definition in its simplest form.
class SlowInsights final {
public:
    SlowInsights(const Record& record, const CategoryStore& categories, const Almanac& almanac,
                 const std::string& today)
        : record_(record), categories_(categories), almanac_(almanac), today_(today) {}

    Insights compute(InsightsRange range) {
        result_ = Insights();
        result_.range = range;
        cutoff_ = range == InsightsRange::all ? "" : dayBeforeToday(range == InsightsRange::week ? 6 : 29);
        addDayInsights();
        addHourInsights();
        reviewBuckets();
        return result_;
    }

private:
    std::string dayBeforeToday(int count) const { return *std::prev(almanac_.days.find(today_), count); }

    void addDayInsights() {
        std::vector<std::string> inRange;
        for (const auto& [day, seconds] : record_.days) {
            if (day < cutoff_) continue;
            inRange.push_back(day);
            result_.totalSeconds += Seconds(seconds);
            if (seconds >= 60) ++result_.activeDays;
            if (seconds > result_.bestDaySeconds.count()) {
                result_.bestDaySeconds = Seconds(seconds);
                result_.bestDayKey = DayKey(day);
            }
        }
        if (!record_.days.empty()) result_.firstDayKey = DayKey(record_.days.begin()->first);
        if (result_.activeDays > 0) {
            result_.avgPerActiveDay = Seconds(result_.totalSeconds.count() / result_.activeDays);
        }
        if (inRange.empty() || !almanac_.days.contains(inRange.front()) ||
            !almanac_.days.contains(inRange.back()))
            return;
        result_.rangeDays = static_cast<int>(std::distance(almanac_.days.find(inRange.front()),
                                                           almanac_.days.find(inRange.back()))) +
                            1;
    }

    void addHourInsights() {
        Counters productive;
        Counters distracting;
        std::map<std::string, std::pair<int, int>> busiest;
        for (const auto& [key, apps] : record_.hours) {
            std::istringstream words(key);
            std::string day;
            std::string hourText;
            std::string more;
            words >> day >> hourText;
            if (hourText.empty() || words >> more || day < cutoff_) continue;
            const int hour = std::atoi(hourText.c_str());
            if (hour < 0 || hour > 23) continue;
            int total = 0;
            for (const auto& [app, seconds] : apps) {
                total += seconds;
                if (categories_.tier(AppId(app)) == Tier::productive) productive[day] += seconds;
                if (categories_.tier(AppId(app)) == Tier::distracting) distracting[day] += seconds;
            }
            result_.hourHistogram[static_cast<std::size_t>(hour)] += Seconds(total);
            if (!busiest.contains(day) || total > busiest[day].second) busiest[day] = {hour, total};
        }
        for (int hour = 0; hour < 24; ++hour) {
            const auto seconds = result_.hourHistogram[static_cast<std::size_t>(hour)];
            if (seconds <= result_.peakHourSeconds) continue;
            result_.peakHour = hour;
            result_.peakHourSeconds = seconds;
        }
        std::vector<int> peaks;
        for (const auto& [day, peak] : busiest) {
            if (peak.second >= 60) peaks.push_back(peak.first);
        }
        double sum = 0;
        for (const int peak : peaks) sum += peak;
        if (!peaks.empty()) result_.avgPeakHour = sum / static_cast<double>(peaks.size());
        for (const auto& [day, seconds] : productive) {
            const int both = seconds + distracting[day];
            if (both < 300) continue;
            const double score = static_cast<double>(seconds) / both;
            if (score <= result_.bestScore) continue;
            result_.bestScore = score;
            result_.bestScoreDayKey = DayKey(day);
        }
    }

    // A time that the clock skipped lies as far behind the last one before it as the clock says.
    std::optional<Instant> instantOf(const std::string& key) const {
        if (const auto shown = almanac_.times.find(key); shown != almanac_.times.end()) return shown->second;
        const auto day = key.substr(0, 10);
        if (!almanac_.days.contains(day) || key.substr(10, 4) != " 02:") return std::nullopt;
        return almanac_.times.at(day + " 01:50") + 10min + minutes(std::atoi(key.c_str() + 14));
    }

    void reviewBuckets() {
        std::multimap<Instant, int> busy;
        for (const auto& [key, apps] : record_.minutes) {
            if (key.substr(0, key.find(' ')) < cutoff_) continue;
            int total = 0;
            for (const auto& [app, seconds] : apps) total += seconds;
            const auto instant = instantOf(key);
            if (total >= 300 && instant) busy.emplace(*instant, total);
        }
        for (auto first = busy.begin(); first != busy.end(); ++first) {
            int seconds = 0;
            auto expected = first->first;
            for (auto next = first; next != busy.end() && next->first == expected; ++next) {
                seconds += next->second;
                expected += 10min;
                if (result_.longest && seconds <= result_.longest->seconds.count()) continue;
                result_.longest =
                    LongestSession{Seconds(seconds), first->first,
                                   next->first + std::chrono::seconds(std::min(next->second, 600))};
            }
        }
    }

    const Record& record_;
    const CategoryStore& categories_;
    const Almanac& almanac_;
    const std::string today_;
    std::string cutoff_;
    Insights result_;
};

TEST(InsightsPropertyTest, AgreesWithASlowImplementation) {
    int sessions = 0;
    const auto all = places();
    std::vector<Almanac> almanacs;
    for (const auto& place : all) almanacs.emplace_back(place.now, *place.zone);
    for (unsigned seed = 1; seed <= 100; ++seed) {
        const auto& place = all[seed % all.size()];
        SCOPED_TRACE(fmt::format("seed {}, {}", seed, place.name));
        const auto record = RecordMaker(seed, place).make();
        test::FakeWorld world;
        world.clock.setZone(place.zone);
        world.clock.setNow(place.now);
        world.files.put(world.todayJson, jsonOf(record.days));
        world.files.put(world.hoursJson, jsonOf(record.hours));
        world.files.put(world.minutesJson, jsonOf(record.minutes));
        test::ClassificationFixture fixture(world);
        if (seed % 3 == 0) fixture.categories.setCategory(Category::games, AppId("org.example.Unknown"));
        if (seed % 4 == 0) fixture.categories.setTier(Tier::distracting, Category::design);
        const InsightsEngine engine(world.clock, fixture.days, fixture.hours, fixture.minutes,
                                    fixture.categories);
        SlowInsights slow(record, fixture.categories, almanacs[seed % all.size()],
                          dayText(place.now, *place.zone));
        for (const auto range : allInsightsRanges()) {
            const auto expected = slow.compute(range);
            const auto computed = engine.compute(range);
            ASSERT_EQ(described(computed), described(expected));
            ASSERT_EQ(computed, expected);
            sessions += computed.longest ? 1 : 0;
        }
    }
    EXPECT_GT(sessions, 200) << "the records hold too little";
}

}  // namespace
}  // namespace tidewatch
