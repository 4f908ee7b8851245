// Writing the counter files of a ten-year record, against the least that any program would have to do for
// the same bytes: copy them once, write, sync and rename.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"

namespace {

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
}

}  // namespace

int main() {
    BenchWorld world(makeLargeRecord({}));
    BenchCore core(world);
    core.daily.flush();
    core.apps.flush();
    const auto today = world.files.readWhole(core.daily.dataFilePath()).value();
    const auto apps = world.files.readWhole(core.apps.dataFilePath()).value();

    std::vector<Milliseconds> ours;
    std::vector<Milliseconds> bare;
    const auto flush = [&] {
        ours.push_back(timed([&] {
            core.daily.flush();
            core.apps.flush();
        }));
    };
    const auto flushBare = [&] {
        bare.push_back(timed([&] {
            replaceBare(world.directory.path() + "/peer-today.json", today);
            replaceBare(world.directory.path() + "/peer-apps.json", apps);
        }));
    };
    // Interleaved and in turns, so that a disk that is busy for a while is so for both.
    for (int round = 0; round < 25; ++round) {
        flush();
        flushBare();
        flushBare();
        flush();
    }

    Verdicts verdicts;
    verdicts.compare("flush of today and apps, ten years", median(ours).count(), 1.5 * median(bare).count(),
                     "ms", "1.5 x memcpy, write, sync, rename of the same bytes in this run");
    return verdicts.exitCode();
}
