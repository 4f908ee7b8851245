#include "platform/linux/posix_file_system.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

struct PosixFileSystemTest : testing::Test {
    test::TemporaryDirectory directory;
    PosixFileSystem files{directory.path()};
    const std::string file = directory.path() + "/today.json";

    static void write(const std::string& path, std::string_view content) {
        std::ofstream(path, std::ios::binary) << content;
    }

    static mode_t modeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    // The names that lie in the test's directory.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : fs::directory_iterator(directory.path())) {
            result.push_back(entry.path().filename());
        }
        std::ranges::sort(result);
        return result;
    }
};

// While it lives, this process writes no file beyond `bytes`.
class FileSizeLimit final {
public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_{};
    void (*handler_)(int);
};

TEST_F(PosixFileSystemTest, TheHomeDirectoryIsTheEnvironmentsWithoutASlashAtItsEnd) {
    const std::string before = std::getenv("HOME");
    ::setenv("HOME", "/home/somebody/", 1);
    EXPECT_EQ(PosixFileSystem().homeDirectory(), "/home/somebody");
    ::setenv("HOME", before.c_str(), 1);
}

TEST_F(PosixFileSystemTest, WithoutAnEnvironmentTheHomeDirectoryIsTheUserDatabases) {
    const std::string before = std::getenv("HOME");
    ::unsetenv("HOME");
    EXPECT_THAT(PosixFileSystem().homeDirectory(), testing::StartsWith("/"));
    ::setenv("HOME", before.c_str(), 1);
}

TEST_F(PosixFileSystemTest, DirectoriesAreMadeForTheirOwnerAlone) {
    const auto deep = directory.path() + "/a/b/c";
    ASSERT_TRUE(files.createDirectories(deep));
    EXPECT_EQ(modeOf(deep), 0700u);
    EXPECT_EQ(modeOf(directory.path() + "/a"), 0700u);
}

TEST_F(PosixFileSystemTest, ADirectoryThatExistsIsASuccessAndKeepsItsMode) {
    const auto shared = directory.path() + "/shared";
    ASSERT_EQ(::mkdir(shared.c_str(), 0755), 0);
    const auto before = modeOf(shared);
    EXPECT_TRUE(files.createDirectories(shared));
    EXPECT_TRUE(files.createDirectories(shared + "/"));
    EXPECT_EQ(modeOf(shared), before);
}

TEST_F(PosixFileSystemTest, AFileInTheDirectorysPlaceIsAnError) {
    write(directory.path() + "/taken", "x");
    const auto outcome = files.createDirectories(directory.path() + "/taken/deeper");
    ASSERT_FALSE(outcome);
    EXPECT_THAT(outcome.error().message, AllOf(HasSubstr("make directory"), HasSubstr("/taken")));
}

TEST_F(PosixFileSystemTest, ANewFileIsForItsOwnerAlone) {
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_EQ(modeOf(file), 0600u);
    EXPECT_EQ(files.readWhole(file).value(), "{}");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, ReplacesAFileWhateverItHeld) {
    ASSERT_TRUE(files.replaceAtomically(file, std::string(300'000, 'x')));
    const std::string content("a\0b\n", 4);
    ASSERT_TRUE(files.replaceAtomically(file, content));
    EXPECT_EQ(files.readWhole(file).value(), content);
    ASSERT_TRUE(files.replaceAtomically(file, ""));
    EXPECT_EQ(files.readWhole(file).value(), "");
}

TEST_F(PosixFileSystemTest, AReaderOfTheOldFileGoesOnReadingTheOldFile) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    std::ifstream reader(file);
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old");
}

TEST_F(PosixFileSystemTest, WhatAKilledWriterLeftIsReplaced) {
    write(file + ".tmp", "half of a rec");
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
    EXPECT_EQ(modeOf(file), 0600u);
}

TEST_F(PosixFileSystemTest, ALinkThatLiesInTheSuccessorsPlaceIsNotWrittenThrough) {
    write(directory.path() + "/victim", "precious");
    fs::create_symlink(directory.path() + "/victim", file + ".tmp");
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_EQ(files.readWhole(directory.path() + "/victim").value(), "precious");
}

TEST_F(PosixFileSystemTest, ASymbolicLinkStaysAndItsTargetIsReplaced) {
    fs::create_directory(directory.path() + "/elsewhere");
    write(directory.path() + "/elsewhere/real.json", "old");
    fs::create_symlink("elsewhere/real.json", file);
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(files.readWhole(directory.path() + "/elsewhere/real.json").value(), "new");
}

TEST_F(PosixFileSystemTest, AWriteThatBreaksOffKeepsTheOldFileAndLeavesNothingBeside) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    Outcome outcome = success();
    {
        const FileSizeLimit limit(4096);
        outcome = files.replaceAtomically(file, std::string(100'000, 'x'));
    }
    ASSERT_FALSE(outcome);
    EXPECT_THAT(outcome.error().message, AllOf(HasSubstr("write "), HasSubstr(": File too large")));
    EXPECT_EQ(files.readWhole(file).value(), "old");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, ADirectoryInTheFilesPlaceIsAnErrorAndLeavesNothingBeside) {
    fs::create_directory(file);
    const auto outcome = files.replaceAtomically(file, "{}");
    ASSERT_FALSE(outcome);
    EXPECT_THAT(outcome.error().message, HasSubstr("rename "));
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
    EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(PosixFileSystemTest, ADirectoryInTheSuccessorsPlaceIsAnErrorAndKeepsTheOldFile) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    fs::create_directory(file + ".tmp");
    const auto outcome = files.replaceAtomically(file, "new");
    ASSERT_FALSE(outcome);
    EXPECT_THAT(outcome.error().message, HasSubstr("open "));
    EXPECT_EQ(files.readWhole(file).value(), "old");
}

TEST_F(PosixFileSystemTest, AMissingDirectoryIsAnError) {
    const auto outcome = files.replaceAtomically(directory.path() + "/none/today.json", "{}");
    ASSERT_FALSE(outcome);
    EXPECT_THAT(outcome.error().message, AllOf(HasSubstr("open "), HasSubstr(": No such file or directory")));
}

TEST_F(PosixFileSystemTest, WhatIsNoFileCannotBeRead) {
    EXPECT_THAT(files.readWhole(file).error().message, HasSubstr("No such file or directory"));
    EXPECT_THAT(files.readWhole(directory.path()).error().message, HasSubstr("not a regular file"));
    const auto pipe = directory.path() + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THAT(files.readWhole(pipe).error().message, HasSubstr("not a regular file"));
}

TEST_F(PosixFileSystemTest, AFileThatDoesNotTellItsSizeIsReadWhole) {
    const auto status = files.readWhole("/proc/self/status");
    ASSERT_TRUE(status);
    EXPECT_THAT(status.value(), AllOf(testing::StartsWith("Name:"), testing::EndsWith("\n")));
    EXPECT_GT(status.value().size(), 256u);
}

}  // namespace
}  // namespace tidewatch::platform
