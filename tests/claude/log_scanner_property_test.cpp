// The fast scanner against the slow one: on trees full of decoys, and on random changes to them, where a
// scanner that remembers must say what a new one says.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "claude/log_scanner.h"
#include "platform/fake/fake_time_zone.h"
#include "tests/claude/claude_world.h"
#include "tests/claude/slow_scanner.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;
using test::ClaudeWorld;
using test::LogEntry;
using test::utc;

// A random tree of logs and its changes.
class RandomLogs final {
public:
    RandomLogs(ClaudeWorld& world, std::uint32_t seed) : world_(world), random_(seed) {}

    [[nodiscard]] int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }
    [[nodiscard]] bool oneIn(int count) { return below(count) == 0; }

    void makeTree() {
        world_.files.put("/home/user/.claude/projects/empty/readme.txt", "");
        for (int i = below(9); i >= 0; --i) putFile();
    }

    void change() {
        const auto name = anyName();
        switch (below(10)) {
            case 0:
                putFile();
                break;
            case 1:
                if (!name.empty()) {
                    world_.files.removeDirectory(ClaudeWorld::logPath(name));
                    names_.erase(name);
                }
                break;
            case 2:
                truncate(name);
                break;
            case 3:
                rewriteInPlace(name);
                break;
            case 4:
                // Also over the end of a month, and now and then back.
                world_.clock.setNow(world_.clock.now() + seconds(oneIn(4) ? -below(90000) : below(900000)));
                break;
            case 5:
                world_.clock.setZone(platform::fixedZone(seconds(below(27 * 3600) - 12 * 3600)));
                break;
            case 6:
                world_.clock.advance(seconds(below(2000)));
                break;
            default:
                if (!name.empty()) appendLines(name);
        }
    }

private:
    std::string anyName() {
        if (names_.empty()) return "";
        return *std::next(names_.begin(), below(static_cast<int>(names_.size())));
    }

    void putFile() {
        static const std::vector<std::string> suffixes{".jsonl", ".jsonl", ".jsonl",
                                                       ".jsonl", ".json",  ".JSONL"};
        auto name = fmt::format("{}p{}/{}s{}{}", oneIn(12) ? "." : "", below(3), oneIn(9) ? "." : "",
                                below(12), suffixes[static_cast<std::size_t>(below(6))]);
        world_.putLog(name, lines());
        names_.insert(name);
        if (oneIn(4)) world_.touchLog(name, world_.clock.now() - seconds(below(5'000'000)));
    }

    void appendLines(const std::string& name) {
        world_.appendToLog(name, lines());
        world_.touchLog(name, world_.clock.now());
    }

    void truncate(const std::string& name) {
        if (name.empty()) return;
        const auto path = ClaudeWorld::logPath(name);
        const auto size = static_cast<int>(world_.files.content(path)->size());
        world_.files.truncate(path, static_cast<std::size_t>(below(size + 1)));
        if (oneIn(2)) appendLines(name);
    }

    void rewriteInPlace(const std::string& name) {
        if (name.empty()) return;
        world_.files.truncate(ClaudeWorld::logPath(name), 0);
        appendLines(name);
    }

    std::string lines() {
        std::string result;
        for (int i = below(14); i > 0; --i) result += line();
        // Half a last line, which later changes may complete.
        if (oneIn(3)) {
            const auto last = line();
            result += last.substr(0, static_cast<std::size_t>(below(static_cast<int>(last.size()) + 1)));
        }
        if (oneIn(40)) result += "\xC3\x28\n";
        return result;
    }

    std::string stamp() {
        auto date = std::chrono::floor<seconds>(world_.clock.now());
        switch (below(5)) {
            case 0:
                date -= seconds(below(18010));
                break;
            case 1:
                date -= seconds(below(800000));
                break;
            case 2:
                date -= seconds(below(12'000'000));
                break;
            // Close to the end of a month, or of five hours.
            case 3:
                date = std::chrono::floor<std::chrono::days>(date);
                date -= std::chrono::days(
                    static_cast<unsigned>(
                        std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(date)).day()) -
                    1);
                date += seconds(below(7200) - 3600);
                break;
            default:
                date -= seconds(18000 + below(5) - 2);
                break;
        }
        const auto civil = civilTime(date, seconds(0));
        return fmt::format("{:04}-{:02}-{:02}{}{:02}:{:02}:{:02}{}", static_cast<int>(civil.date.year()),
                           static_cast<unsigned>(civil.date.month()), static_cast<unsigned>(civil.date.day()),
                           oneIn(5) ? ' ' : 'T', civil.hour, civil.minute, civil.second,
                           oneIn(4)   ? "+05:00"
                           : oneIn(2) ? ".123Z"
                                      : "");
    }

    std::string line() {
        static const std::vector<std::string> models{
            "claude-opus-4-7", "claude-sonnet-4-6", "claude-haiku-4-5",  "claude-3-haiku",
            "<synthetic>",     "modelo ñ",          "claude-opus-4-5-x", "claude-sonnet-9"};
        const LogEntry entry{stamp(),
                             oneIn(4) ? 0 : below(5000),
                             oneIn(4) ? below(2) : below(60000),
                             below(9000),
                             below(90000),
                             models[static_cast<std::size_t>(below(static_cast<int>(models.size())))]};
        auto text = entry.line();
        if (oneIn(2)) return text;
        text.pop_back();
        return decoy(entry, text) + "\n";
    }

    // A line like `text` with something about it that readers get wrong.
    std::string decoy(const LogEntry& entry, const std::string& text) {
        const auto usage = fmt::format(R"("usage":{{"output_tokens":{}}})", entry.output);
        const auto stamped = fmt::format(R"("timestamp":"{}")", entry.stamp);
        const auto replaced = [&](std::string_view from, std::string_view to) {
            auto result = text;
            result.replace(result.find(from), from.size(), to);
            return result;
        };
        switch (below(50)) {
            case 0:
                return "";
            case 1:
                return "[" + text + "]";
            case 2:
                return text + text;
            case 3:
                return text.substr(0, text.size() - 1);
            case 4:
                return text + "\r";
            case 5:
                return "  \t" + text + "  ";
            case 6:
                return "{" + stamped + "," + usage + "}";
            case 7:
                return "{" + stamped + R"(,"message":"hi",)" + usage + R"(,"model":"m"})";
            case 8:
                return "{" + stamped + R"(,"toolUseResult":{)" + usage + "}}";
            case 9:
                return "{" + stamped + R"(,"message":{"content":[{)" + usage + "}]}}";
            case 10:
                return "{" + stamped + R"(,"text":"{\"usage\":{\"output_tokens\":5}}"})";
            case 11:
                return "{" + stamped + R"(,"message":{)" + usage + R"(},"message":null,"usage":{}})";
            case 12:
                return "{" + stamped + "," + usage + R"(,"usage":{"input_tokens":3}})";
            case 13:
                return "{" + stamped + R"(,"\u0075s\u0061ge":{"output_tokens":9}})";
            case 14:
                return "{" + stamped + R"(,"usage":{"output_tokens":9.0,"input_tokens":1}})";
            case 15:
                return "{" + stamped + R"(,"usage":{"output_tokens":99999999999999999999,"input_tokens":1}})";
            case 16:
                return "{" + stamped + R"(,"x":[1e999,-123456789012345678901234567890],)" + usage + "}";
            case 17:
                return "{" + stamped + R"(,"x":01,"y":1e999,)" + usage + "}";
            case 18:
                return "{" + stamped + R"(,"x":nul,)" + usage + "}";
            case 19:
                return "{" + stamped + R"(,"x":"\ud800",)" + usage + "}";
            case 20:
                return "{" + stamped + R"(,"x":")" + std::string(1, '\0') + "\"," + usage + "}";
            case 21:
                return "{" + stamped + R"(,"x":[1},)" + usage + "}";
            case 22:
                return R"({"created_at":")" + entry.stamp + R"(","timestamp":5,)" + usage + "}";
            case 23:
                return R"({"created_at":")" + entry.stamp + R"(","timestamp":"",)" + usage + "}";
            case 24:
                return "{" + stamped + R"(,"usage":[)" + std::to_string(entry.output) + "]}";
            case 25:
                return "{" + stamped + R"(,"usage":{"output_tokens":0,"cache_read_input_tokens":77}})";
            case 26:
                return "{" + stamped + R"(,"text":")" +
                       std::string(static_cast<std::size_t>(below(3000)), 'x') + "\"," + usage + "}";
            case 27:
                return replaced(entry.stamp, "2026-02-30T10:00:00");
            case 28:
                return replaced(entry.stamp, entry.stamp.substr(0, 18));
            case 29:
                return "{" + stamped + R"(,"x":)" + std::string(1200, '[') + std::string(1200, ']') + "," +
                       usage + "}";
            case 30:
                return "{" + stamped + R"(,"text":"\"usage" ,)" + usage + R"(,"model":"\u00e9"})";
            case 31:
                return "\xEF\xBB\xBF" + text;
            // Of strings a quick reader looks for the end only, in blocks that begin anywhere.
            case 32:
                return "{" + stamped + R"(,"text":")" + filler() + R"(\q",)" + usage + "}";
            case 33:
                return "{" + stamped + R"(,"text":")" + filler() + "\t\"," + usage + "}";
            case 34:
                return "{" + stamped + R"(,"text":")" + filler() + R"(\u00e9 \" \\\" \/",)" + usage + "}";
            case 35:
                return "{" + stamped + R"(,"text":")" + filler() + R"(\ud83d\ude42",)" + usage + "}";
            case 36:
                return "{" + stamped + R"(,"text":")" + filler() + R"(\udc00",)" + usage + "}";
            case 37:
                return "{" + stamped + R"(,"text":")" + filler() + R"(\u12g4",)" + usage + "}";
            case 38:
                return "{" + stamped + R"(,"text":")" + filler() +
                       std::string(static_cast<std::size_t>(below(9)), '\\') + "\"," + usage + "}";
            case 39:
                return "{" + stamped + R"(,"text":")" + filler() + usage + "}";
            case 40:
                return "{" + stamped + R"(,"text":")" + filler() + R"(é — 日本語",)" + usage + "}";
            // The same keys in other spellings, which count as duplicates.
            case 41:
                return "{" + stamped + "," + usage + R"(,"usag\u0065":{"output_tokens":11}})";
            case 42:
                return "{" + stamped + R"(,"usage":{"output_tokens":3,"output_\u0074okens":12}})";
            case 43:
                return "{" + stamped + R"(,"t\u0069mestamp":"2020-01-01T00:00:00",)" + usage + "}";
            case 44:
                return R"({"timestamp":")" + entry.stamp.substr(0, 16) + R"(:\u0030\u0031",)" + usage + "}";
            case 45:
                return "{" + stamped + "," + usage + R"(,"model":"claude-\u006fpus"})";
            case 46:
                return "{" + stamped + R"(,"x":)" + std::string(70, '[') + std::string(70, ']') + "," +
                       usage + "}";
            case 47:
                return "{" + stamped + R"(,"x":[)" + manyStrings() + "]," + usage + "}";
            case 48:
                return "{" + stamped + R"(,"x":[-0,0.5e+3,-12,true,false,null,{},[],""],)" + usage + "}";
            default:
                return "{" + stamped + R"(,"x":[-0,0.5e+,"y"],)" + usage + "}";
        }
    }

    std::string filler() { return std::string(static_cast<std::size_t>(below(150)), 'x'); }

    std::string manyStrings() {
        std::string strings = R"("")";
        for (int i = 1500 + below(1200); i > 0; --i) strings += R"(,"")";
        return strings;
    }

    ClaudeWorld& world_;
    std::mt19937 random_;
    std::set<std::string> names_;
};

PastMonths toPastMonths(const std::map<std::string, test::SlowMonth>& slow) {
    PastMonths months;
    for (const auto& [key, month] : slow) {
        months[std::chrono::year(std::stoi(key.substr(0, 4))) /
               std::chrono::month(static_cast<unsigned>(std::stoi(key.substr(5, 2))))] = {
            month.activeWindows, month.conversations, month.outputTokensK};
    }
    return months;
}

void expectTruth(const ClaudeWorld& world, LogScanner& scanner) {
    const auto slow = test::scanSlowly(world.files, world.clock);
    test::expectSame(scanner.scan(), slow.snapshot);
    EXPECT_EQ(scanner.scanPastMonths(), toPastMonths(slow.pastMonths));
}

// A second thread helps whatever there is to read.
constexpr std::uint64_t alwaysHelped = 0;

TEST(LogScannerProperty, SaysOfAHundredTreesWhatTheSlowScannerSays) {
    std::int64_t requests = 0;
    for (std::uint32_t seed = 1; seed <= 100 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        ClaudeWorld world;
        RandomLogs logs(world, seed);
        logs.makeTree();
        LogScanner scanner(world.files, world.clock, alwaysHelped);
        expectTruth(world, scanner);
        requests += scanner.scan().month.requests;
    }
    EXPECT_GT(requests, 500);
}

TEST(LogScannerProperty, SaysAfterEachChangeWhatAScanFromNothingSays) {
    for (std::uint32_t seed = 1; seed <= 40 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        ClaudeWorld world;
        RandomLogs logs(world, seed);
        logs.makeTree();
        LogScanner scanner(world.files, world.clock, alwaysHelped);
        for (int step = 0; step < 30 && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(step);
            for (int i = logs.below(4); i >= 0; --i) logs.change();
            expectTruth(world, scanner);
            LogScanner fromNothing(world.files, world.clock, alwaysHelped);
            EXPECT_EQ(scanner.scan(), fromNothing.scan());
            EXPECT_EQ(scanner.scanPastMonths(), fromNothing.scanPastMonths());
        }
    }
}

}  // namespace
}  // namespace tidewatch
