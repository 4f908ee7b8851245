#include "tests/claude/claude_world.h"

#include <fmt/format.h>

#include <stdexcept>

#include "claude/log_stamp.h"

namespace tidewatch::test {

Instant utc(std::string_view text) {
    const auto date = parseLogStamp(text);
    if (!date) throw std::invalid_argument(std::string(text));
    return *date;
}

std::string LogEntry::line() const {
    return fmt::format(
        R"({{"timestamp":"{}","message":{{"model":"{}","usage":{{"input_tokens":{},"output_tokens":{},)"
        R"("cache_creation_input_tokens":{},"cache_read_input_tokens":{}}}}}}})"
        "\n",
        stamp, model, input, output, cacheWrite, cacheRead);
}

void ClaudeWorld::putLog(const std::string& name, std::string_view content) {
    files.put(logPath(name), content);
    touchLog(name, clock.now());
}

void ClaudeWorld::appendToLog(const std::string& name, std::string_view content) {
    files.append(logPath(name), content);
}

}  // namespace tidewatch::test
