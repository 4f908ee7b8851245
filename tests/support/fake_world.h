#pragma once

#include <chrono>
#include <string>

#include "platform/fake/fake_machine.h"
#include "tests/support/fail_test.h"

namespace tidewatch::test {

/// A fake machine for a test: 2026-01-15 09:00 UTC, an empty disk, an active user, and no frontmost
/// application. An unexpected warning fails the test.
struct FakeWorld : platform::FakeMachine {
    FakeWorld()
        : FakeMachine(std::chrono::sys_days(std::chrono::January / 15 / 2026) + std::chrono::hours(9),
                      failTest) {}

    const std::string todayJson = "/home/user/.tidewatch/today.json";
    const std::string appsJson = "/home/user/.tidewatch/apps.json";
    const std::string hoursJson = "/home/user/.tidewatch/hours.json";
    const std::string minutesJson = "/home/user/.tidewatch/minutes.json";
    const std::string projectTimeJson = "/home/user/.tidewatch/project_time.json";
    const std::string categoriesJson = "/home/user/.tidewatch/categories.json";
    const std::string projectsJson = "/home/user/.tidewatch/projects.json";

    void putAppInFront(const char* id) { frontmost.set(AppId(id)); }
};

}  // namespace tidewatch::test
