// The analyzer's arithmetic on random trees on disk, against a slow one that is written as the rules read.

#include <fcntl.h>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <random>

#include "platform/posix/posix_file_system.h"
#include "system/disk_scan.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch {
namespace {

namespace fs = std::filesystem;
using platform::FileTime;
using platform::VisitAction;
using std::chrono::days;

constexpr Instant now{days(20'000)};
constexpr std::int64_t mebibyte = 1024 * 1024;

class RandomTree final {
public:
    RandomTree(fs::path root, std::uint32_t seed) : root_(std::move(root)), random_(seed) { fill(root_, 0); }

private:
    int below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }

    std::string name() {
        constexpr std::array names{"a",         "b",        "Película.mkv", ".hidden",
                                   "two words", "\xff\xfe", "zip.ZIP",      "n"};
        return names[static_cast<std::size_t>(below(names.size()))] + std::to_string(below(30));
    }

    void fill(const fs::path& directory, int depth) {
        fs::create_directories(directory);
        for (int count = below(9); count > 0; --count) {
            const auto path = directory / name();
            if (fs::symlink_status(path).type() != fs::file_type::not_found) continue;
            const auto kind = below(12);
            if (kind < 4 && depth < 5) {
                fill(path, depth + 1);
                if (kind == 0 && below(4) == 0) fs::permissions(path, fs::perms::none);
            } else if (kind == 4) {
                fs::create_symlink(below(2) ? root_ : directory / "absent", path);
            } else if (kind == 5 && !files_.empty()) {
                fs::create_hard_link(files_.back(), path);
            } else if (kind == 6) {
                ::mkfifo(path.c_str(), 0600);
            } else {
                addFile(path);
            }
        }
    }

    void addFile(const fs::path& path) {
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT, 0600);
        const auto size = below(3) == 0 ? 50 * mebibyte - 2 + below(5) : below(3) * mebibyte * 40;
        static_cast<void>(::ftruncate(file, size));
        const auto accessed = std::chrono::seconds(days(20'000 - 125 + below(10))).count();
        const std::array<timespec, 2> times{timespec{.tv_sec = accessed, .tv_nsec = 0},
                                            timespec{.tv_sec = accessed - 1000, .tv_nsec = 0}};
        ::futimens(file, times.data());
        ::close(file);
        files_.push_back(path);
    }

    const fs::path root_;
    std::mt19937 random_;
    std::vector<fs::path> files_;
};

struct Expected {
    std::vector<std::string> files;  // "old size path", in order of age and size
    std::map<std::string, std::int64_t> items;
    std::int64_t total = 0;
    std::int64_t reclaimable = 0;
};

Expected scanSlowly(const std::string& root) {
    Expected expected;
    std::vector<std::tuple<bool, std::int64_t, std::string>> files;
    auto entries = fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied);
    for (auto entry = begin(entries); entry != end(entries); ++entry) {
        const auto path = entry->path().string();
        if (entry->path().filename().string().starts_with('.')) {
            if (entry->symlink_status().type() == fs::file_type::directory) entry.disable_recursion_pending();
            continue;
        }
        struct stat status {};
        if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
        expected.total += status.st_size;
        const auto relative = path.substr(root.size() + 1);
        expected.items[root + "/" + relative.substr(0, relative.find('/'))] += status.st_size;
        const bool isOld =
            std::chrono::sys_time(std::chrono::seconds(status.st_atim.tv_sec)) < now - days(120);
        if (status.st_size >= 50 * mebibyte) files.emplace_back(!isOld, -status.st_size, path);
    }
    std::ranges::stable_sort(files, [](const auto& a, const auto& b) {
        return std::pair(get<0>(a), get<1>(a)) < std::pair(get<0>(b), get<1>(b));
    });
    files.resize(std::min<std::size_t>(files.size(), 60));
    for (const auto& [isRecent, size, path] : files) {
        expected.files.push_back(fmt::format("{} {}", !isRecent, -size));
        if (!isRecent) expected.reclaimable -= size;
    }
    return expected;
}

TEST(DiskScanProperty, SaysWhatASlowScanSays) {
    std::size_t largeFiles = 0;
    for (std::uint32_t seed = 1; seed <= 25; ++seed) {
        const test::TemporaryDirectory directory;
        const auto root = directory.path() + "/root";
        const RandomTree tree(root, seed);
        DiskScan scan(now);
        scan.enterRoot(root);
        const auto status =
            platform::PosixFileSystem(directory.path())
                .enumerate(root, platform::HiddenFiles::skipped, [&](const platform::FoundFile& found) {
                    scan.add(found);
                    return VisitAction::proceed;
                });
        ASSERT_TRUE(status);
        const auto result = std::move(scan).result();
        const auto expected = scanSlowly(root);
        EXPECT_EQ(result.totalScannedBytes, expected.total) << seed;
        EXPECT_EQ(result.reclaimableBytes, expected.reclaimable) << seed;
        std::vector<std::string> files;
        for (const auto& file : result.largeOld) files.push_back(fmt::format("{} {}", file.isOld, file.size));
        EXPECT_EQ(files, expected.files) << seed;
        std::vector<std::int64_t> sizes;
        for (const auto& [path, size] : expected.items) sizes.push_back(size);
        std::ranges::sort(sizes, std::ranges::greater());
        sizes.resize(std::min<std::size_t>(sizes.size(), 15));
        ASSERT_EQ(result.topFolders.size(), sizes.size()) << seed;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            const auto& folder = result.topFolders[i];
            EXPECT_EQ(folder.size, sizes[i]) << seed;
            EXPECT_EQ(expected.items.at(folder.path), folder.size) << seed;
        }
        largeFiles += files.size();
    }
    // The trees are not trivial.
    EXPECT_GT(largeFiles, 80);
}

TEST(DiskScanProperty, ATreeAThousandLevelsDeepIsScanned) {
    const test::TemporaryDirectory directory;
    std::string file;
    for (int level = 0; level < 1000; ++level) file += "d/";
    file += "file";
    directory.write(file, "");
    const auto path = directory.path() + "/" + file;
    fs::resize_file(path, 60 * mebibyte);
    DiskScan scan(now);
    scan.enterRoot(directory.path());
    ASSERT_TRUE(platform::PosixFileSystem(directory.path())
                    .enumerate(directory.path(), platform::HiddenFiles::skipped,
                               [&](const platform::FoundFile& found) {
                                   scan.add(found);
                                   return VisitAction::proceed;
                               }));
    const auto result = std::move(scan).result();
    ASSERT_EQ(result.largeOld.size(), 1);
    EXPECT_EQ(result.largeOld[0].path, path);
    EXPECT_EQ(result.topFolders.at(0).size, 60 * mebibyte);
}

}  // namespace
}  // namespace tidewatch
