// Scanning Claude logs: a first scan with its history, relative to reading the same bytes; and later ones,
// that have little or nothing to read.

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/support/bench_world.h"
#include "bench/support/claude_logs.h"
#include "bench/support/ratio.h"
#include "claude/log_scanner.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

constexpr auto now = std::chrono::sys_days(std::chrono::March / 25 / 2026) + std::chrono::hours(15);

struct ClaudeBench {
    explicit ClaudeBench(ClaudeLogsSize size) {
        size.until = clock.now();
        writeClaudeLogs(size, directory.path());
        for (const auto& entry : std::filesystem::recursive_directory_iterator(directory.path())) {
            if (entry.is_regular_file()) paths.push_back(entry.path());
        }
    }

    void scanAnew() {
        scanner.reset();
        scanner.emplace(files, clock);
        scan();
    }

    // As the monitor does: what is current, then the past.
    void scan() {
        snapshot = scanner->scan();
        past = scanner->scanPastMonths();
    }

    // The minimum that anybody would have to do who reads everything.
    void readAll() const {
        std::vector<char> buffer(256 << 10);
        for (const auto& path : paths) {
            const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
            if (file < 0) giveUp("cannot open " + path);
            while (::read(file, buffer.data(), buffer.size()) > 0) continue;
            ::close(file);
        }
    }

    void appendLine() const {
        std::ofstream(paths.front(), std::ios::app)
            << R"({"timestamp":"2026-03-25T14:59:59Z","message":{"usage":{"output_tokens":5}}})" << '\n';
    }

    test::TemporaryDirectory directory;
    platform::PosixFileSystem files{directory.path()};
    platform::FakeClock clock{now};
    std::vector<std::string> paths;
    std::optional<LogScanner> scanner;
    ClaudeSnapshot snapshot;
    std::optional<PastMonths> past;
};

// Of /proc/self/status, in megabytes.
double status(std::string_view key) {
    std::ifstream file("/proc/self/status");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(key)) return std::stod(line.substr(key.size() + 1)) / 1024;
    }
    giveUp("no " + std::string(key));
    return 0;
}

// How much the process grows at most while `work` runs.
double peakMegabytes(const std::function<void()>& work) {
    std::ofstream("/proc/self/clear_refs") << "5";
    const auto before = status("VmRSS");
    work();
    return status("VmHWM") - before;
}

// Of all threads; the best of several, since others may use the caches as well.
double processorMilliseconds(const std::function<void()>& work) {
    auto best = std::numeric_limits<std::clock_t>::max();
    for (int round = 0; round < 5; ++round) {
        const auto begin = std::clock();
        work();
        best = std::min(best, std::clock() - begin);
    }
    return 1e3 * static_cast<double>(best) / CLOCKS_PER_SEC;
}

// The best of several, since others may use the machine as well.
double bestMilliseconds(const std::function<void()>& prepare, const std::function<void()>& work) {
    auto best = Milliseconds::max();
    for (int round = 0; round < 15; ++round) {
        prepare();
        best = std::min(best, timed(work));
    }
    return best.count();
}

void requireUsage(const ClaudeBench& bench) {
    if (bench.snapshot.month.requests == 0 || !bench.past || bench.past->size() < 3)
        giveUp("no usage was found");
}

void measureFirstScan(const char* name, const ClaudeLogsSize& size, Verdicts& verdicts) {
    ClaudeBench bench(size);
    bench.readAll();
    const auto peak = peakMegabytes([&] { bench.scanAnew(); });
    verdicts.race(
        fmt::format("first scan with its history, {}", name), [&] { bench.scanAnew(); }, 2.3,
        "reading the same bytes", [&] { bench.readAll(); });
    requireUsage(bench);
    verdicts.amount(fmt::format("peak memory of it, {}", name), peak, 30, "MB", "30 MB");
    fmt::print("processor time of it, {}: {:.0f} ms, reading: {:.0f} ms\n", name,
               processorMilliseconds([&] { bench.scanAnew(); }),
               processorMilliseconds([&] { bench.readAll(); }));
}

void measureLaterScans(Verdicts& verdicts) {
    ClaudeLogsSize size;
    size.files = 3000;
    size.bytes = 150'000'000;
    ClaudeBench bench(size);
    bench.scanAnew();
    requireUsage(bench);
    verdicts.amount("scan of 3,000 unchanged files", bestMilliseconds([] {}, [&] { bench.scan(); }), 10, "ms",
                    "10 ms");
    const auto before = bench.snapshot.month.requests;
    const auto appended = bestMilliseconds([&] { bench.appendLine(); }, [&] { bench.scan(); });
    verdicts.amount("scan of 3,000 files after a line was appended", appended, 15, "ms", "15 ms");
    if (bench.snapshot.month.requests != before + 15) giveUp("the appended lines were not found");
}

}  // namespace

int main() {
    Verdicts verdicts;
    if (verdicts.run() == Run::counted) return 0;
    ClaudeLogsSize small;
    small.files = 200;
    small.bytes = 100'000'000;
    measureFirstScan("200 files of 100 MB", small, verdicts);
    if (verdicts.run() == Run::judged) measureFirstScan("1,000 files of 1 GB", {}, verdicts);
    measureLaterScans(verdicts);
    return verdicts.exitCode();
}
