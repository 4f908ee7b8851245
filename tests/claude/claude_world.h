#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/instant.h"
#include "tests/support/fake_world.h"

namespace tidewatch::test {

/// The instant of "2026-03-11T12:00:00", UTC.
[[nodiscard]] Instant utc(std::string_view text);

/// What a log line says; the defaults make an ordinary one.
struct LogEntry {
    std::string stamp;
    std::int64_t input = 0;
    std::int64_t output = 0;
    std::int64_t cacheWrite = 0;
    std::int64_t cacheRead = 0;
    std::string model = "claude-sonnet-4-6";

    /// As a line, with its line feed.
    [[nodiscard]] std::string line() const;
};

/// A fake machine on Wednesday, 2026-03-11, 12:00 UTC, with logs.
struct ClaudeWorld : FakeWorld {
    ClaudeWorld() { clock.setNow(utc("2026-03-11T12:00:00")); }

    /// The path of a log.
    [[nodiscard]] static std::string logPath(const std::string& name) {
        return "/home/user/.claude/projects/" + name;
    }

    /// Creates or replaces a log, modified now.
    void putLog(const std::string& name, std::string_view content);
    void appendToLog(const std::string& name, std::string_view content);
    /// As if modified then.
    void touchLog(const std::string& name, Instant modified) { files.touch(logPath(name), modified); }

    const std::string historyJson = "/home/user/.tidewatch/claude_history.json";
};

}  // namespace tidewatch::test
