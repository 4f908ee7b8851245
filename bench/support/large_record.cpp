#include "bench/support/large_record.h"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "core/clock_keys.h"
#include "core/counter_json.h"
#include "tools/support/random.h"

namespace tidewatch::bench {
namespace {

using namespace std::chrono_literals;

constexpr auto bucketSeconds = static_cast<int>(bucketSize.count());

std::string dateText(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

// Names as long and as similar as real ones.
std::vector<std::string> applicationNames(int count) {
    constexpr std::array patterns{"org.example.Editor{:02}", "firefox-{:02}", "com.example.mail.client{:02}",
                                  "xterm{:02}", "org.example.desktop.Files{:02}"};
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) {
        names.push_back(
            fmt::format(fmt::runtime(patterns[static_cast<std::size_t>(i) % patterns.size()]), i));
    }
    return names;
}

class Maker final {
public:
    explicit Maker(const RecordSize& size)
        : size_(size), random_(size.seed), names_(applicationNames(size.applications)) {}

    LargeRecord make() {
        auto day = std::chrono::sys_days(std::chrono::January / 4 / 2016);
        record_.firstDay = DayKey(dateText(day));
        for (int made = 0; made < size_.years * size_.daysPerYear; day += std::chrono::days(1)) {
            const std::chrono::weekday weekday(day);
            if (weekday == std::chrono::Saturday || weekday == std::chrono::Sunday) continue;
            makeDay(dateText(day));
            record_.lastDay = DayKey(dateText(day));
            ++made;
        }
        return std::move(record_);
    }

private:
    void makeDay(const std::string& day) {
        for (int bucket = 0; bucket < size_.bucketsPerDay; ++bucket) {
            const auto several = random_.between(size_.minPerBucket, size_.maxPerBucket);
            int left = bucketSeconds;
            for (int i = 0; i < several; ++i) {
                const int share = i + 1 == several ? left : random_.between(0, left / 2);
                if (share > 0) book(day, bucket, names_[favourite()], share);
                left -= share;
            }
        }
    }

    // The only place that knows which files contain a second of work.
    void book(const std::string& dayText, int bucket, std::string_view app, int count) {
        constexpr int firstBucket = 9 * bucketsPerHour;
        const int hour = (firstBucket + bucket) / bucketsPerHour;
        const int minute = (firstBucket + bucket) % bucketsPerHour * minutesPerBucket;
        const DayKey day(dayText);
        const auto hourText = hourKey(day, hour).text();
        const auto bucketText = bucketKey(day, {hour, minute}).text();
        const auto project = projectId(bucket * size_.projects / size_.bucketsPerDay).text();
        const Seconds seconds(count);
        record_.today.add(std::array<std::string_view, 1>{dayText}, seconds);
        record_.apps.add(std::array<std::string_view, 2>{dayText, app}, seconds);
        record_.hours.add(std::array<std::string_view, 2>{hourText, app}, seconds);
        record_.minutes.add(std::array<std::string_view, 2>{bucketText, app}, seconds);
        record_.projectTime.add(std::array<std::string_view, 3>{dayText, project, app}, seconds);
    }

    // Some applications are used all day long, most of them rarely.
    std::size_t favourite() {
        const auto any = static_cast<std::size_t>(random_.between(0, size_.applications - 1));
        return std::min(any, static_cast<std::size_t>(random_.between(0, size_.applications - 1)));
    }

    const RecordSize& size_;
    Random random_;
    const std::vector<std::string> names_;
    LargeRecord record_;
};

void writeFile(const std::string& path, const CounterRecord& record) {
    std::ofstream file(path, std::ios::binary);
    file << serializeCounters(record);
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace

LargeRecord makeLargeRecord(const RecordSize& size) {
    return Maker(size).make();
}

Uuid projectId(int project) {
    return Uuid::random(0x5EED, static_cast<std::uint64_t>(project));
}

void writeLargeRecord(const LargeRecord& record, const std::string& directory) {
    writeFile(directory + "/today.json", record.today);
    writeFile(directory + "/apps.json", record.apps);
    writeFile(directory + "/hours.json", record.hours);
    writeFile(directory + "/minutes.json", record.minutes);
    writeFile(directory + "/project_time.json", record.projectTime);
}

}  // namespace tidewatch::bench
