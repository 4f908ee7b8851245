// A scan of a million small files, relative to what du takes to add up the same ones.

#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "platform/posix/posix_file_system.h"
#include "system/disk_scan.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

constexpr int filesPerFolder = 50;
constexpr Instant now = std::chrono::sys_days(std::chrono::January / 15 / 2026);

// Twenty folders with folders of fifty files, as projects and pictures lie.
void makeTree(const std::string& root, int files) {
    for (int folder = 0; folder * filesPerFolder < files; ++folder) {
        const auto path = fmt::format("{}/item {}/folder {}", root, folder % 20, folder);
        std::filesystem::create_directories(path);
        for (int file = 0; file < filesPerFolder; ++file) {
            const int made = ::open(fmt::format("{}/picture {:05}.jpeg", path, file).c_str(),
                                    O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
            if (made < 0) giveUp("a file could not be made");
            ::close(made);
        }
    }
}

DiskScanResult scan(const platform::PosixFileSystem& disk, const std::string& root) {
    DiskScan scan(now);
    scan.enterRoot(root);
    const auto status =
        disk.enumerate(root, platform::HiddenFiles::skipped, [&](const platform::FoundFile& found) {
            scan.add(found);
            return platform::VisitAction::proceed;
        });
    if (!status) giveUp(status.error().message);
    return std::move(scan).result();
}

// What any program has to ask of the system: the names in each folder, and the size of each file.
std::int64_t bareWalk(int folder) {
    std::int64_t entries = 0;
    DIR* const names = ::fdopendir(folder);
    if (!names) giveUp("a folder could not be read");
    while (const auto* entry = ::readdir(names)) {
        const std::string_view name = entry->d_name;
        struct stat status {};
        if (name == "." || name == ".." ||
            ::fstatat(::dirfd(names), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        ++entries;
        if (S_ISDIR(status.st_mode))
            entries += bareWalk(::openat(::dirfd(names), entry->d_name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    ::closedir(names);
    return entries;
}

double peakMegabytes() {
    std::ifstream file("/proc/self/status");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
    }
    giveUp("no peak");
    return 0;
}

}  // namespace

int main() {
    Verdicts verdicts;
    if (verdicts.run() == Run::counted) return 0;
    const int files = verdicts.run() == Run::judged ? 1'000'000 : 20'000;
    const test::TemporaryDirectory directory;
    makeTree(directory.path(), files);
    const platform::PosixFileSystem disk(directory.path());
    const auto du = "du --summarize --apparent-size '" + directory.path() + "' >/dev/null";

    std::size_t items = 0;
    auto ours = Milliseconds::max();
    auto theirs = Milliseconds::max();
    const int rounds = verdicts.run() == Run::judged ? 5 : 1;
    for (int round = 0; round < rounds; ++round) {
        theirs = std::min(theirs, timed([&] {
                              if (std::system(du.c_str()) != 0) giveUp("du failed");
                          }));
        ours = std::min(ours, timed([&] { items = scan(disk, directory.path()).topFolders.size(); }));
    }
    if (items != 15) giveUp("the scan found other folders");
    verdicts.amount(fmt::format("scan of {} files", files), ours.count(), 0.5 * theirs.count(), "ms",
                    "0.5 x du");
    verdicts.amount("peak memory of it", peakMegabytes(), 25, "MB", "25 MB");

    std::int64_t entries = 0;
    const auto bare = timed(
        [&] { entries = bareWalk(::open(directory.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)); });
    if (entries < files) giveUp("the bare walk found fewer files");
    fmt::print("the bare system calls on one thread: {:.0f} ms, the scan {:.0f} ms\n", bare.count(),
               ours.count());
    return verdicts.exitCode();
}
