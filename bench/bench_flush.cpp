// Writing the counter files of a ten-year record, against the least that any program would have to do for
// the same bytes: copy them once, write, sync, rename and sync the directory.

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
    const int directory = ::open(path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY);
    require(directory >= 0 && ::fsync(directory) == 0 && ::close(directory) == 0, "sync the directory");
}

}  // namespace

int main() {
    BenchWorld world(makeLargeRecord({}));
    BenchStores stores(world);
    stores.flush();
    std::vector<std::string> contents;
    const std::vector paths{stores.daily.dataFilePath(), stores.apps.dataFilePath(),
                            stores.hours.dataFilePath(), stores.minutes.dataFilePath(),
                            stores.times.dataFilePath()};
    for (const auto& path : paths) {
        contents.push_back(world.files.readWhole(path).value());
    }

    Verdicts verdicts;
    verdicts.race(
        "flush of five counter files, ten years", [&] { stores.flush(); }, 1.5,
        "memcpy, write, sync, rename, directory's sync of the same bytes",
        [&] {
            for (std::size_t i = 0; i < contents.size(); ++i) {
                replaceBare(world.directory.path() + "/peer-" + std::to_string(i), contents[i]);
            }
        });
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if (world.files.readWhole(paths[i]).value() != contents[i]) giveUp("a flush wrote something else");
    }
    return verdicts.exitCode();
}
