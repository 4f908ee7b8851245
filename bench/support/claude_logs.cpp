#include "bench/support/claude_logs.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string_view>

namespace tidewatch::bench {
namespace {

constexpr double medianLine = 1500;
constexpr double spread = 1.306;  // of the logarithm: a tenth of the lines has 8 KB or more
constexpr double longestLine = 70000;
constexpr int percentWithUsage = 60;

// What replies are full of: prose and code, now and then other letters than English ones.
constexpr std::array<std::string_view, 9> replyPhrases{
    "The function reads the whole file before it decides what to do. ",
    R"(\n\nif (!found) return std::nullopt;\n    )",
    "La prueba falla porque el reloj todavía marca la hora de ayer. ",
    R"(import \"std/io\"\n\nfunc main() {\n\tprint(\"hello\")\n}\n)",
    "Let me look at the tests next and see which of them covers this case. ",
    "— naïve résumé, 日本語, emoji 🙂 and quotes “like these” — ",
    "I will keep the change small: one new function, and a test for each of its edge cases.\\n",
    "Now the build passes; the remaining failure is about the order of rows. ",
    R"(std::string text = read(path).value_or(\"\");\n        )",
};
// And results of tools.
constexpr std::array<std::string_view, 6> resultPhrases{
    R"(src/core/timer_engine.cpp:118: warning: unused variable\n)",
    R"(\u001b[32mPASS\u001b[0m 120 tests, 0 failures\n)",
    R"(\t{\"usage\": {\"output_tokens\": 12}, \"type\": \"message\"}\n)",
    R"(   118\u2192    const auto found = std::ranges::find(rows, key, &Row::key);\n)",
    R"(C:\\Users\\somebody\\project\\readme.md\n)",
    R"(0123456789abcdef0123456789abcdef0123456789abcdef  build/output.bin\n)",
};

constexpr std::array<std::string_view, 4> models{"claude-opus-4-7", "claude-sonnet-4-6", "claude-sonnet-4-6",
                                                 "claude-haiku-4-5-20251001"};

class LogWriter final {
public:
    explicit LogWriter(std::uint32_t seed) : random_(seed) {}

    [[nodiscard]] int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

    std::string line(Instant at) {
        const auto size = std::clamp(lineSize_(random_), 350.0, longestLine);
        const auto civil = civilTime(at, std::chrono::seconds(0));
        const auto stamp =
            fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}.{:03}Z", static_cast<int>(civil.date.year()),
                        static_cast<unsigned>(civil.date.month()), static_cast<unsigned>(civil.date.day()),
                        civil.hour, civil.minute, civil.second, below(1000));
        const auto id = fmt::format("{:08x}-{:04x}-4{:03x}-a{:03x}-{:012x}", random_(), below(65536),
                                    below(4096), below(4096), random_());
        const bool withUsage = below(100) < percentWithUsage;
        auto text = withUsage ? replyBegin(id) : resultBegin(id);
        const auto end = withUsage ? replyEnd(id, stamp) : resultEnd(id, stamp);
        while (static_cast<double>(text.size() + end.size()) < size) {
            text += withUsage ? any(replyPhrases) : any(resultPhrases);
        }
        return text + end + "\n";
    }

private:
    template <std::size_t Count>
    [[nodiscard]] std::string_view any(const std::array<std::string_view, Count>& from) {
        return from[static_cast<std::size_t>(below(static_cast<int>(Count)))];
    }

    static std::string replyBegin(const std::string& id) {
        return fmt::format(
            R"({{"parentUuid":"{}","isSidechain":false,"userType":"external","cwd":"/home/user/project",)"
            R"("version":"2.0.1","message":{{"id":"msg_01","type":"message","role":"assistant",)"
            R"("content":[{{"type":"text","text":")",
            id);
    }
    std::string replyEnd(const std::string& id, const std::string& stamp) {
        return fmt::format(
            R"("}}],"model":"{}","stop_reason":null,"usage":{{"input_tokens":{},)"
            R"("cache_creation_input_tokens":{},"cache_read_input_tokens":{},"output_tokens":{},)"
            R"("service_tier":"standard"}}}},"requestId":"req_01","type":"assistant","uuid":"{}",)"
            R"("timestamp":"{}"}})",
            any(models), below(40), below(6000), below(150000), below(2500), id, stamp);
    }
    static std::string resultBegin(const std::string& id) {
        return fmt::format(
            R"({{"parentUuid":"{}","isSidechain":false,"userType":"external","cwd":"/home/user/project",)"
            R"("version":"2.0.1","type":"user","message":{{"role":"user","content":[{{)"
            R"("tool_use_id":"toolu_01","type":"tool_result","content":")",
            id);
    }
    static std::string resultEnd(const std::string& id, const std::string& stamp) {
        return fmt::format(
            R"("}}]}},"uuid":"{}","timestamp":"{}","toolUseResult":{{"ok":true,"durationMs":12}}}})", id,
            stamp);
    }

    std::mt19937 random_;
    std::lognormal_distribution<double> lineSize_{std::log(medianLine), spread};
};

void setModified(const std::string& path, Instant at) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(at).time_since_epoch().count();
    const timespec times[] = {{.tv_sec = seconds, .tv_nsec = 0}, {.tv_sec = seconds, .tv_nsec = 0}};
    if (::utimensat(AT_FDCWD, path.c_str(), times, 0) != 0) throw std::runtime_error("cannot touch " + path);
}

}  // namespace

void writeClaudeLogs(const ClaudeLogsSize& size, const std::string& home) {
    LogWriter writer(size.seed);
    const auto bytesPerFile = size.bytes / static_cast<std::size_t>(size.files);
    for (int file = 0; file < size.files; ++file) {
        const auto folder = fmt::format("{}/.claude/projects/-home-user-project-{}", home, file % 20);
        std::filesystem::create_directories(folder);
        const auto path = fmt::format("{}/{:08x}-0000-4000-a000-{:012x}.jsonl", folder, file, file);
        // A session of some hours; the first file is the latest.
        constexpr std::chrono::hours span(24 * 120);
        auto at = size.until - span * file / size.files - std::chrono::hours(4);
        std::string content;
        while (content.size() < bytesPerFile) {
            content += writer.line(at);
            at = std::min(at + std::chrono::seconds(writer.below(90)), size.until);
        }
        std::ofstream(path, std::ios::binary) << content;
        setModified(path, at);
    }
}

}  // namespace tidewatch::bench
