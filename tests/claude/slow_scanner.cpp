#include "tests/claude/slow_scanner.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <vector>

#include "tests/fuzz/strict_json.h"

namespace tidewatch::test {
namespace {

using fuzz::Json;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

const Json* lastOf(const Json& object, std::string_view name) {
    const auto all = object.all(name);
    return all.empty() ? nullptr : all.back();
}

template <class Type>
const Type* memberOf(const Json& object, std::string_view name) {
    const auto* value = lastOf(object, name);
    return value ? value->as<Type>() : nullptr;
}

std::int64_t integerOf(const Json& usage, std::string_view name) {
    const auto* number = memberOf<Json::Number>(usage, name);
    if (!number) return 0;
    const auto& text = number->spelled;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : 0;
}

std::optional<sys_seconds> dateOf(std::string stamp) {
    stamp = stamp.substr(0, 19);
    if (stamp.size() != 19) return std::nullopt;
    for (std::size_t i = 0; i < 19; ++i) {
        if (stamp[i] == ' ') stamp[i] = 'T';
        const char separator = i == 4 || i == 7 ? '-' : i == 10 ? 'T' : i == 13 || i == 16 ? ':' : '\0';
        if (separator != '\0' ? stamp[i] != separator : stamp[i] < '0' || stamp[i] > '9') return std::nullopt;
    }
    const auto number = [&](std::size_t at, std::size_t length) {
        return std::stoi(stamp.substr(at, length));
    };
    const auto year = number(0, 4);
    const auto month = number(5, 2);
    const auto day = number(8, 2);
    const bool leaps = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const std::vector<int> lengths{31, leaps ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (year < 1 || month < 1 || month > 12 || day < 1 ||
        day > lengths[static_cast<std::size_t>(month - 1)]) {
        return std::nullopt;
    }
    if (number(11, 2) > 23 || number(14, 2) > 59 || number(17, 2) > 59) return std::nullopt;
    return sys_days(std::chrono::year(year) / month / day) + std::chrono::hours(number(11, 2)) +
           std::chrono::minutes(number(14, 2)) + std::chrono::seconds(number(17, 2));
}

struct SlowLine {
    sys_seconds date;
    std::int64_t input = 0;
    std::int64_t output = 0;
    std::int64_t cacheWrite = 0;
    std::int64_t cacheRead = 0;
    std::string model = "unknown";
};

std::optional<SlowLine> parseLine(const std::string& text) {
    const auto json = fuzz::parseStrictly(text);
    if (!json || !json->as<Json::Members>()) return std::nullopt;
    const auto* stamp = memberOf<std::string>(*json, "timestamp");
    if (!stamp) stamp = memberOf<std::string>(*json, "created_at");
    const auto date = dateOf(stamp ? *stamp : "");
    if (!date) return std::nullopt;
    const auto* message = lastOf(*json, "message");
    if (!message || !message->as<Json::Members>()) message = &*json;
    const auto* usage = lastOf(*message, "usage");
    SlowLine line;
    line.date = *date;
    if (usage && usage->as<Json::Members>()) {
        line.input = integerOf(*usage, "input_tokens");
        line.output = integerOf(*usage, "output_tokens");
        line.cacheWrite = integerOf(*usage, "cache_creation_input_tokens");
        line.cacheRead = integerOf(*usage, "cache_read_input_tokens");
    }
    if (const auto* model = memberOf<std::string>(*message, "model")) line.model = *model;
    if (line.output <= 0 && line.input < 1) return std::nullopt;
    return line;
}

double priceOf(const SlowLine& line) {
    const auto& name = line.model;
    const auto has = [&](const char* part) { return name.find(part) != std::string::npos; };
    double input = 3.0;
    double output = 15.0;
    double write = 3.75;
    double read = 0.3;
    if (has("opus")) {
        input = 15.0;
        output = 75.0;
        write = 18.75;
        read = 1.5;
    } else if (has("haiku")) {
        input = 0.8;
        output = 4.0;
        write = 1.0;
        read = 0.08;
    }
    return static_cast<double>(line.input) / 1e6 * input + static_cast<double>(line.output) / 1e6 * output +
           static_cast<double>(line.cacheWrite) / 1e6 * write +
           static_cast<double>(line.cacheRead) / 1e6 * read;
}

std::string windowKeyOf(sys_seconds date) {
    const auto civil = civilTime(date, std::chrono::seconds(0));
    return fmt::format("{:04}-{:02}-{:02}-{}", static_cast<int>(civil.date.year()),
                       static_cast<unsigned>(civil.date.month()), static_cast<unsigned>(civil.date.day()),
                       civil.hour / 5);
}

std::string monthKeyOf(Instant date, const platform::TimeZone& zone) {
    const auto civil = civilTime(date, zone.utcOffset(date));
    return fmt::format("{:04}-{:02}", static_cast<int>(civil.date.year()),
                       static_cast<unsigned>(civil.date.month()));
}

void addLine(const SlowLine& line, ClaudeUsagePeriod& period) {
    period.inputTokens += line.input;
    period.outputTokens += line.output;
    period.cacheWriteTokens += line.cacheWrite;
    period.cacheReadTokens += line.cacheRead;
    ++period.requests;
    period.estimatedUsd += priceOf(line);
    period.byModel[line.model] += line.output;
}

struct SlowFile {
    platform::FileTime modified;
    std::vector<SlowLine> lines;
};

std::vector<std::string> splitLines(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char c : text) {
        if (c == '\n')
            lines.emplace_back();
        else
            lines.back() += c;
    }
    return lines;
}

std::vector<SlowFile> readAll(const platform::FileSystem& files) {
    std::vector<SlowFile> result;
    static_cast<void>(files.enumerate(files.homeDirectory() + "/.claude/projects",
                                      platform::HiddenFiles::skipped, [&](const auto& found) {
                                          if (!found.path.ends_with(".jsonl"))
                                              return platform::VisitAction::proceed;
                                          const auto text = files.readFile(std::string(found.path));
                                          if (!text || !fuzz::isUtf8(text.value()))
                                              return platform::VisitAction::proceed;
                                          SlowFile file{found.info.modified, {}};
                                          for (const auto& line : splitLines(text.value())) {
                                              if (const auto parsed = parseLine(line))
                                                  file.lines.push_back(*parsed);
                                          }
                                          result.push_back(std::move(file));
                                          return platform::VisitAction::proceed;
                                      }));
    return result;
}

}  // namespace

SlowScan scanSlowly(const platform::FileSystem& files, const platform::Clock& clock) {
    SlowScan result;
    if (!files.inspect(files.homeDirectory() + "/.claude/projects")) return result;
    const auto now = clock.now();
    const auto zone = clock.timeZone();
    const auto today = std::chrono::floor<std::chrono::days>(now);
    auto week = today;
    while (std::chrono::weekday(week) != std::chrono::Monday) week -= std::chrono::days(1);
    auto month = today;
    while (static_cast<unsigned>(std::chrono::year_month_day(month).day()) != 1)
        month -= std::chrono::days(1);

    auto& snapshot = result.snapshot;
    std::map<std::string, std::int64_t> windows;
    std::map<std::string, std::set<std::string>> pastWindows;
    const auto currentMonth = monthKeyOf(now, *zone);
    for (const auto& file : readAll(files)) {
        for (const auto& line : file.lines) {
            if (const auto key = monthKeyOf(line.date, *zone); key != currentMonth && line.output > 0) {
                auto& past = result.pastMonths[key];
                ++past.conversations;
                past.outputTokensK += line.output / 1000;
                pastWindows[key].insert(windowKeyOf(line.date));
            }
            if (file.modified < month || line.date < month) continue;
            addLine(line, snapshot.month);
            windows[windowKeyOf(line.date)] += line.output;
            if (line.date >= week) addLine(line, snapshot.week);
            if (line.date >= today) addLine(line, snapshot.today);
            if (line.date >= now - std::chrono::hours(5)) {
                addLine(line, snapshot.lastFiveH);
                if (!snapshot.windowStarted || line.date < *snapshot.windowStarted)
                    snapshot.windowStarted = line.date;
                if (!snapshot.windowLastMsg || line.date > *snapshot.windowLastMsg)
                    snapshot.windowLastMsg = line.date;
            }
        }
    }
    for (const auto& [key, used] : pastWindows) {
        result.pastMonths[key].activeWindows = static_cast<std::int64_t>(used.size());
    }
    snapshot.roi.activeWindows = static_cast<std::int64_t>(windows.size());
    for (const auto& [key, output] : windows) snapshot.roi.heavyWindows += output > 50000 ? 1 : 0;
    const auto days = (today - month).count();
    snapshot.roi.possibleWindows = ((days < 1 ? 1 : days) + 1) * 5;
    std::string top;
    auto most = std::numeric_limits<std::int64_t>::min();
    for (const auto& [model, output] : snapshot.month.byModel) {
        if (output > most) {
            top = model;
            most = output;
        }
    }
    snapshot.plan = top.find("opus") != std::string::npos ? "Max" : "Pro";
    snapshot.scannedAt = now;
    return result;
}

void expectSame(const ClaudeSnapshot& fast, const ClaudeSnapshot& slow) {
    auto rounded = fast;
    const auto takeCost = [](ClaudeUsagePeriod& period, const ClaudeUsagePeriod& other) {
        EXPECT_NEAR(period.estimatedUsd, other.estimatedUsd, 1e-9 * (1 + std::abs(other.estimatedUsd)));
        period.estimatedUsd = other.estimatedUsd;
    };
    takeCost(rounded.today, slow.today);
    takeCost(rounded.lastFiveH, slow.lastFiveH);
    takeCost(rounded.week, slow.week);
    takeCost(rounded.month, slow.month);
    EXPECT_EQ(rounded.today, slow.today);
    EXPECT_EQ(rounded.lastFiveH, slow.lastFiveH);
    EXPECT_EQ(rounded.week, slow.week);
    EXPECT_EQ(rounded.month, slow.month);
    EXPECT_EQ(rounded, slow);
}

}  // namespace tidewatch::test
