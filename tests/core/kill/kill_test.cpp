// Kills a working core at random times and checks what is left on the disk.
//
// TIDEWATCH_LONG=1 kills 200 times instead of 30; TIDEWATCH_SEED repeats the times of an earlier run.

#include <gmock/gmock.h>
#include <simdjson.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <thread>

#include "bench/support/large_record.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

constexpr int ticksBetweenFlushes = 30;

constexpr std::array names{"today.json", "apps.json", "hours.json", "minutes.json", "project_time.json"};

/// Sums of all seconds in each of the files.
using Sums = std::array<std::int64_t, names.size()>;

/// What a killed child had printed.
struct Report {
    std::optional<Sums> loaded;
    std::optional<Sums> lastFlush;
    int flushes = 0;
};

using Counters = std::map<std::string, std::int64_t>;

Report parseReport(const std::string& said) {
    Report report;
    std::istringstream lines(said.substr(0, said.rfind('\n') + 1));
    std::string what;
    Sums sums;
    while (lines >> what >> sums[0] >> sums[1] >> sums[2] >> sums[3] >> sums[4]) {
        if (what == "loaded") {
            report.loaded = sums;
        } else {
            report.lastFlush = sums;
            ++report.flushes;
        }
    }
    return report;
}

void collect(simdjson::dom::element element, const std::string& path, Counters& counters) {
    simdjson::dom::object object;
    if (element.get(object) == simdjson::SUCCESS) {
        for (const auto& [key, value] : object) collect(value, path + "/" + std::string(key), counters);
        return;
    }
    std::int64_t seconds = 0;
    ASSERT_EQ(element.get(seconds), simdjson::SUCCESS) << path << " is no counter";
    counters[path] = seconds;
}

std::int64_t sumOf(const Counters& counters) {
    std::int64_t sum = 0;
    for (const auto& [path, seconds] : counters) sum += seconds;
    return sum;
}

class KillTest : public testing::Test {
protected:
    KillTest() {
        std::filesystem::create_directory(data_);
        bench::RecordSize size;
        size.years = 1;
        size.daysPerYear = 60;
        bench::writeLargeRecord(bench::makeLargeRecord(size), data_);
        for (std::size_t file = 0; file < names.size(); ++file) contents_[file] = read(names[file]);
    }

    // Every file must exist and be valid.
    Counters read(const std::string& name) {
        Counters counters;
        simdjson::dom::element top;
        EXPECT_EQ(parser_.load(data_ + "/" + name).get(top), simdjson::SUCCESS) << name << " does not parse";
        if (!testing::Test::HasFailure()) collect(top, "", counters);
        return counters;
    }

    // How long a child takes to complete its first flush, on this machine and with this build.
    std::chrono::microseconds timeToFirstFlush() {
        for (auto span = 20ms; span < 20s; span *= 2) {
            const auto report = workAndKill(span);
            expectNothingLost(report);
            if (report.lastFlush || HasFailure()) return span;
        }
        ADD_FAILURE() << "no child lives to flush";
        return 0us;
    }

    // Lets a child work for `span` from its start on, kills it, and returns what it had printed.
    Report workAndKill(std::chrono::microseconds span) {
        std::array<int, 2> pipe{};
        EXPECT_EQ(::pipe(pipe.data()), 0);
        const auto start = std::to_string(wallClock_);
        const pid_t child = ::fork();
        if (child == 0) {
            ::dup2(pipe[1], STDOUT_FILENO);
            ::close(pipe[0]);
            ::close(pipe[1]);
            ::execl(KILL_CHILD, "kill_child", home_.path().c_str(), start.c_str(), nullptr);
            ::_exit(127);
        }
        ::close(pipe[1]);
        std::thread killer([&] {
            std::this_thread::sleep_for(span);
            ::kill(child, SIGKILL);
        });
        std::string said;
        std::array<char, 4096> buffer;
        for (ssize_t got = 0; (got = ::read(pipe[0], buffer.data(), buffer.size())) > 0;) {
            said.append(buffer.data(), static_cast<std::size_t>(got));
        }
        ::close(pipe[0]);
        killer.join();
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
            << "the child ended by itself, status " << status;
        return parseReport(said);
    }

    void expectNothingLost(const Report& report) {
        for (std::size_t file = 0; file < names.size() && !HasFailure(); ++file) {
            SCOPED_TRACE(names[file]);
            const auto now = read(names[file]);
            if (HasFailure()) return;
            expectAtLeast(contents_[file], now);
            const auto found = sumOf(contents_[file]);
            const auto left = sumOf(now);
            if (report.loaded) {
                EXPECT_EQ((*report.loaded)[file], found) << "it did not continue from what was on the disk";
            }
            // No less than was flushed, and at most one flush more, which could not be reported any more.
            const auto known = report.lastFlush ? (*report.lastFlush)[file] : found;
            EXPECT_GE(left, known);
            EXPECT_LE(left, known + ticksBetweenFlushes);
            contents_[file] = now;
        }
    }

    static void expectAtLeast(const Counters& before, const Counters& now) {
        for (const auto& [path, seconds] : before) {
            const auto counter = now.find(path);
            ASSERT_NE(counter, now.end()) << path << " is gone";
            ASSERT_GE(counter->second, seconds) << path;
        }
    }

    // Besides the files at most one temporary file each. Returns whether there is any.
    [[nodiscard]] bool leftUnfinished() const {
        bool unfinished = false;
        for (const auto& entry : std::filesystem::directory_iterator(data_)) {
            const auto name = entry.path().filename().string();
            const bool isSuccessor = name.ends_with(".tmp");
            const auto file = isSuccessor ? name.substr(0, name.size() - 4) : name;
            EXPECT_TRUE(file == "projects.json" || std::ranges::find(names, file) != names.end()) << name;
            unfinished = unfinished || isSuccessor;
        }
        return unfinished;
    }

    test::TemporaryDirectory home_;
    const std::string data_ = home_.path() + "/.tidewatch";
    std::int64_t wallClock_ = 1'768'467'600;  // 2026-01-15 09:00 UTC
    simdjson::dom::parser parser_;
    std::array<Counters, names.size()> contents_;
};

std::uint32_t seed() {
    const char* given = std::getenv("TIDEWATCH_SEED");
    return given ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10)) : std::random_device()();
}

int killCount() {
    const char* isLong = std::getenv("TIDEWATCH_LONG");
    return isLong && std::string(isLong) == "1" ? 200 : 30;
}

TEST_F(KillTest, WhateverTheMomentEveryFileParsesAndHoldsTheLastCompletedFlush) {
    const auto usedSeed = seed();
    std::mt19937 random(usedSeed);
    std::printf("seed %u\n", usedSeed);
    const auto longest = 2 * timeToFirstFlush();
    int flushes = 0;
    int unfinished = 0;
    int kills = 0;
    while (kills < killCount() && !HasFailure()) {
        const std::chrono::microseconds span(random() % static_cast<std::uint32_t>(longest.count() + 1));
        const auto report = workAndKill(span);
        expectNothingLost(report);
        flushes += report.flushes;
        unfinished += leftUnfinished() ? 1 : 0;
        wallClock_ += 1800;
        ++kills;
        if (HasFailure()) std::printf("after kill %d, %ld us after the start\n", kills, long(span.count()));
    }
    std::printf("%d kills, %d completed flushes, %d in the middle of a write\n", kills, flushes, unfinished);
    EXPECT_GT(flushes, 0) << "no child lived to flush: the test has shown nothing";
}

}  // namespace
}  // namespace tidewatch
