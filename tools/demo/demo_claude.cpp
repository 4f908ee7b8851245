#include "tools/demo/demo_claude.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string_view>

#include "claude/claude_month_record.h"
#include "claude/local_months.h"

namespace tidewatch::demo {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono;

constexpr int daysOfLogs = 120;
constexpr std::array<std::string_view, 3> projects{"-home-ana-sitio-web", "-home-ana-app-movil",
                                                   "-home-ana-libro"};
constexpr std::array<std::string_view, 6> models{"claude-opus-4-7",   "claude-opus-4-7",
                                                 "claude-opus-4-7",   "claude-sonnet-4-6",
                                                 "claude-sonnet-4-6", "claude-haiku-4-5-20251001"};

class DemoSessions final {
public:
    DemoSessions(Instant now, fs::path folder) : now_(now), folder_(std::move(folder)) {}

    // The sessions that end so many days ago.
    void writeDay(int daysAgo) {
        const auto day = now_ - hours(24 * daysAgo);
        const bool isSunday = weekday(floor<days>(day)) == Sunday;
        const int sessions = isSunday ? below(2) : 2 + below(2);
        for (int session = 0; session < sessions; ++session) {
            writeSession(day - minutes(20) - hours(4 * session) - minutes(below(70)));
        }
    }

private:
    [[nodiscard]] int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

    void writeSession(Instant end) {
        const auto folder = folder_ / projects[static_cast<std::size_t>(below(3))];
        fs::create_directories(folder);
        const auto name = fmt::format("{:08x}-{:04x}-4000-a000-{:012x}", random_(), ++count_, random_());
        std::ofstream file(folder / (name + ".jsonl"), std::ios::binary);
        const auto model = models[static_cast<std::size_t>(below(6))];
        const int lines = 8 + below(24);
        for (int line = 0; line < lines; ++line) file << lineAt(end - minutes(3 * (lines - line)), model);
        if (!file.flush()) throw std::runtime_error("cannot write to " + folder.string());
    }

    std::string lineAt(Instant at, std::string_view model) {
        const auto civil = civilTime(at, seconds(0));
        return fmt::format(
            R"({{"type":"assistant","timestamp":"{:04}-{:02}-{:02}T{:02}:{:02}:{:02}.000Z",)"
            R"("message":{{"role":"assistant","model":"{}","content":[],"usage":{{"input_tokens":{},)"
            R"("cache_creation_input_tokens":{},"cache_read_input_tokens":{},"output_tokens":{}}}}}}})"
            "\n",
            static_cast<int>(civil.date.year()), static_cast<unsigned>(civil.date.month()),
            static_cast<unsigned>(civil.date.day()), civil.hour, civil.minute, civil.second, model,
            5 + below(400), 1000 + below(15000), 20000 + below(90000), 200 + below(5200));
    }

    const Instant now_;
    const fs::path folder_;
    std::mt19937 random_{20260421};
    unsigned count_ = 0;
};

// The month before the oldest one of the logs.
ClaudeMonthRecord prunedMonth(Instant now) {
    const year_month_day oldest(floor<days>(now - hours(24 * daysOfLogs)));
    return {.month = toMonthKey(oldest.year() / oldest.month() - months(1)),
            .activeWindows = 48,
            .possibleWindows = 150,
            .heavyWindows = 9,
            .conversations = 905,
            .outputTokensK = 2210,
            .subscriptionUsd = 100};
}

}  // namespace

void writeDemoClaude(Instant now, const std::string& home) {
    DemoSessions sessions(now, fs::path(home) / ".claude/projects");
    for (int day = daysOfLogs; day >= 0; --day) sessions.writeDay(day);
    const auto history = fs::path(home) / ".tidewatch/claude_history.json";
    fs::create_directories(history.parent_path());
    std::ofstream file(history, std::ios::binary);
    file << serializeMonthHistory({prunedMonth(now)}).value();
    if (!file.flush()) throw std::runtime_error("cannot write " + history.string());
}

}  // namespace tidewatch::demo
