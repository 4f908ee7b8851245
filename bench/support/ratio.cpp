#include "bench/support/ratio.h"

#include <fmt/core.h>
#include <valgrind/callgrind.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace tidewatch::bench {
namespace {

constexpr int rounds = 25;
constexpr double millionsAMillisecond = 10;

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

Run wantedRun() {
    if (RUNNING_ON_VALGRIND > 0) return Run::counted;
    return variable("TIDEWATCH_BENCH") == "judge" ? Run::judged : Run::trial;
}

// The sum over all functions in a file that callgrind wrote.
double readTotal(const std::string& path) {
    constexpr std::string_view mark = "totals: ";
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(mark)) return std::stod(line.substr(mark.size()));
    }
    throw std::runtime_error("no count in " + path);
}

}  // namespace

Milliseconds timed(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - begin;
}

Verdicts::Verdicts() : run_(wantedRun()), countsPath_(variable("TIDEWATCH_COUNTS")) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
}

void Verdicts::computation(std::string_view name, const std::function<void()>& work, double maxMilliseconds) {
    if (run_ == Run::counted) {
        judge(name, millionsOfInstructions(work), millionsAMillisecond * maxMilliseconds,
              "million instructions", fmt::format("{} ms at 10 million each", maxMilliseconds));
        return;
    }
    Milliseconds best = timed(work);
    for (int round = 1; run_ == Run::judged && round < rounds; ++round) best = std::min(best, timed(work));
    fmt::print("{}: {:.3f} ms, judged by its instructions\n", name, best.count());
}

void Verdicts::race(std::string_view name, const std::function<void()>& work, double ratio,
                    std::string_view peerName, const std::function<void()>& peer) {
    if (run_ == Run::counted) return;
    auto ours = Milliseconds::max();
    auto theirs = Milliseconds::max();
    // Alternating, so that a temporarily busy disk affects both.
    for (int round = 0; round < (run_ == Run::judged ? rounds : 1); ++round) {
        ours = std::min(ours, timed(work));
        theirs = std::min({theirs, timed(peer), timed(peer)});
        ours = std::min(ours, timed(work));
    }
    judge(name, ours.count(), ratio * theirs.count(), "ms", fmt::format("{} x {}", ratio, peerName));
}

void Verdicts::amount(std::string_view name, double measured, double limit, std::string_view unit,
                      std::string_view bar) {
    if (run_ != Run::counted) judge(name, measured, limit, unit, bar);
}

void Verdicts::judge(std::string_view name, double measured, double limit, std::string_view unit,
                     std::string_view bar) {
    const bool met = measured <= limit;
    failed_ = failed_ || (!met && run_ != Run::trial);
    fmt::print("{}: {:.3f} / {:.3f} {} ({}) {}\n", name, measured, limit, unit, bar,
               run_ == Run::trial ? "not judged"
               : met              ? "PASS"
                                  : "FAIL");
}

double Verdicts::millionsOfInstructions(const std::function<void()>& work) {
    work();
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    work();
    CALLGRIND_DUMP_STATS;
    CALLGRIND_STOP_INSTRUMENTATION;
    return readTotal(fmt::format("{}.{}", countsPath_, ++counts_)) / 1e6;
}

}  // namespace tidewatch::bench
