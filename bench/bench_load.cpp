// Loading a record of one to twenty years at start-up, and its memory use afterwards.

#include <fmt/format.h>
#include <malloc.h>

#include <array>
#include <filesystem>
#include <optional>

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

double heapMegabytes() {
    const auto info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
}

double megabytesOnDisk(const BenchWorld& world) {
    std::uintmax_t bytes = 0;
    for (const auto& file : std::filesystem::directory_iterator(world.directory.path() + "/.tidewatch")) {
        bytes += file.file_size();
    }
    return static_cast<double>(bytes) / 1e6;
}

// Ten years may take 80 ms and 15 MB for 40 MB in files; other amounts in proportion.
constexpr double maxMillisecondsPerMegabyte = 80.0 / 40;
constexpr double maxHeapPerMegabyte = 15.0 / 40;

void measure(int years, Verdicts& verdicts) {
    RecordSize size;
    size.years = years;
    BenchWorld world(makeLargeRecord(size));
    const auto onDisk = megabytesOnDisk(world);
    const auto what = fmt::format("{} years in five files of {:.1f} MB", years, onDisk);
    std::optional<BenchStores> stores;
    verdicts.computation(
        "load of " + what,
        [&] {
            stores.reset();
            stores.emplace(world);
        },
        maxMillisecondsPerMegabyte * onDisk);
    if (stores->days.allDays().size() != static_cast<std::size_t>(years * size.daysPerYear)) {
        giveUp("the record was not loaded");
    }
    stores.reset();
    const auto before = heapMegabytes();
    stores.emplace(world);
    verdicts.amount("heap of " + what, heapMegabytes() - before, maxHeapPerMegabyte * onDisk, "MB",
                    "0.375 MB a MB");
}

}  // namespace

int main() {
    Verdicts verdicts;
    const std::vector<int> years =
        verdicts.run() == Run::trial ? std::vector{1, 10} : std::vector{1, 5, 10, 20};
    for (const int count : years) measure(count, verdicts);
    return verdicts.exitCode();
}
