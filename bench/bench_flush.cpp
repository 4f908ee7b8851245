// Writing the counter files of a ten-year record in the background, relative to the minimum that any program
// would have to do for the same bytes: copy them once, write, sync, rename and sync the directory. And the
// cost of a minute's flushes, while the user works and while idle.

#include <fcntl.h>
#include <time.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

void require(bool good, const char* what) {
    if (!good) giveUp(std::string("the peer failed to ") + what);
}

void replaceBare(const std::string& path, const std::string& bytes) {
    const auto copy = std::make_unique_for_overwrite<char[]>(bytes.size());
    std::memcpy(copy.get(), bytes.data(), bytes.size());
    const auto successor = path + ".new";
    const int file = ::open(successor.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    require(file >= 0, "open");
    require(::write(file, copy.get(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "write");
    require(::fsync(file) == 0, "sync");
    require(::close(file) == 0, "close");
    require(std::rename(successor.c_str(), path.c_str()) == 0, "rename");
    const int directory = ::open(path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY);
    require(directory >= 0 && ::fsync(directory) == 0 && ::close(directory) == 0, "sync the directory");
}

Milliseconds processorTime() {
    timespec time{};
    require(::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time) == 0, "tell the time");
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// The stores of a ten-year record and the queue that writes them.
struct FlushBench {
    void bookAndFlush() {
        stores.bookSecond(world.clock);
        flush();
    }
    void flush() {
        stores.flushOn(disk);
        disk.finish();
    }

    [[nodiscard]] std::vector<std::string> contents() const {
        std::vector<std::string> result;
        for (const auto& path : paths) result.push_back(world.files.readFile(path).value());
        return result;
    }

    BenchWorld world{makeLargeRecord({})};
    BenchStores stores{world};
    SerialQueue disk{[this](JobQueue::Job job) { world.loop.post(std::move(job)); }};
    const std::vector<std::string> paths{stores.days.dataFilePath(), stores.apps.dataFilePath(),
                                         stores.hours.dataFilePath(), stores.minutes.dataFilePath(),
                                         stores.times.dataFilePath()};
};

struct Cost {
    double milliseconds = 0;  // of the processor, all threads
    double megabytes = 0;     // written
};

/// The cost of the two flushes of a minute, `flush` being one of them.
Cost costOfAMinute(FlushBench& bench, const std::function<void()>& flush) {
    Cost cost;
    const auto begin = processorTime();
    for (int i = 0; i < 2; ++i) {
        std::vector<platform::FileInfo> before;
        for (const auto& path : bench.paths) before.push_back(bench.world.files.inspect(path).value());
        flush();
        for (std::size_t file = 0; file < before.size(); ++file) {
            const auto after = bench.world.files.inspect(bench.paths[file]).value();
            if (after != before[file]) cost.megabytes += static_cast<double>(after.size) / 1e6;
        }
    }
    cost.milliseconds = (processorTime() - begin).count();
    return cost;
}

void expectLastStateOnDisk(FlushBench& bench) {
    const auto written = bench.contents();
    BenchStores next(bench.world);
    const auto today = next.dayRule.today();
    if (next.days.seconds(today) != bench.stores.days.seconds(today)) giveUp("a flush lost seconds");
    next.flush();
    if (bench.contents() != written) giveUp("a flush wrote something else");
}

}  // namespace

int main() {
    FlushBench bench;
    bench.bookAndFlush();
    const auto contents = bench.contents();

    Verdicts verdicts;
    verdicts.race(
        "flush of five counter files beside the main thread, ten years", [&] { bench.bookAndFlush(); }, 1.5,
        "memcpy, write, sync, rename, directory's sync of the same bytes",
        [&] {
            for (std::size_t i = 0; i < contents.size(); ++i) {
                replaceBare(bench.world.directory.path() + "/peer-" + std::to_string(i), contents[i]);
            }
        });
    const auto working = costOfAMinute(bench, [&] { bench.bookAndFlush(); });
    const auto idle = costOfAMinute(bench, [&] { bench.flush(); });
    constexpr double maxMilliseconds = 120;
    verdicts.amount("processor time of a minute's two flushes while working, ten years", working.milliseconds,
                    maxMilliseconds, "ms", "what they may cost");
    verdicts.amount("written by them", working.megabytes, 100, "MB", "two of a record of some 40 MB");
    verdicts.amount("processor time of a minute's two flushes while idle, ten years", idle.milliseconds, 2,
                    "ms", "next to nothing");
    verdicts.amount("written by them", idle.megabytes, 0, "MB", "nothing");
    expectLastStateOnDisk(bench);
    return verdicts.exitCode();
}
