#include "platform/posix/posix_file_system.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "tests/support/temporary_directory.h"

namespace {

// What has been brought to the disk: 'f' for a file, 'd' for a directory.
std::string synced;

}  // namespace

// In the place of the C library's.
extern "C" int fsync(int descriptor) {
    struct stat status {};
    ::fstat(descriptor, &status);
    synced += S_ISDIR(status.st_mode) ? 'd' : 'f';
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

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

// While it lives, new files lack these rights.
class Umask final {
public:
    explicit Umask(mode_t mask) : before_(::umask(mask)) {}
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;
    ~Umask() { ::umask(before_); }

private:
    mode_t before_;
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
    const auto status = files.createDirectories(directory.path() + "/taken/deeper");
    ASSERT_FALSE(status);
    EXPECT_THAT(status.error().message, AllOf(HasSubstr("make directory"), HasSubstr("/taken")));
}

TEST_F(PosixFileSystemTest, AFileIsDistinguishedFromItsReplacement) {
    write(file, "12345");
    const timespec times[] = {{0, 0}, {1'768'467'600, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    const auto before = files.inspect(file).value();
    EXPECT_EQ(before.kind, FileKind::file);
    EXPECT_EQ(before.size, 5u);
    EXPECT_EQ(before.modified.time_since_epoch(), std::chrono::nanoseconds(1'768'467'600'123'456'789));
    EXPECT_EQ(files.inspect(file).value(), before);
    ASSERT_TRUE(files.replaceAtomically(file, "12345"));
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    const auto after = files.inspect(file).value();
    EXPECT_EQ(after.modified, before.modified);
    EXPECT_NE(after.identity, before.identity);
}

TEST_F(PosixFileSystemTest, ALinkIsInspectedAsWhatItLeadsTo) {
    write(directory.path() + "/elsewhere", "12345");
    fs::create_symlink(directory.path() + "/elsewhere", file);
    EXPECT_EQ(files.inspect(file).value(), files.inspect(directory.path() + "/elsewhere").value());
    EXPECT_EQ(files.inspect(directory.path()).value().kind, FileKind::directory);
    ASSERT_EQ(::mkfifo((directory.path() + "/pipe").c_str(), 0600), 0);
    EXPECT_EQ(files.inspect(directory.path() + "/pipe").value().kind, FileKind::other);
    fs::remove(directory.path() + "/elsewhere");
    EXPECT_EQ(files.inspect(file).error().message, "inspect " + file + ": No such file or directory");
}

TEST_F(PosixFileSystemTest, ANewFileIsForItsOwnerAlone) {
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_EQ(modeOf(file), 0600u);
    EXPECT_EQ(files.readFile(file).value(), "{}");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, ReplacesAFileWhateverItHeld) {
    ASSERT_TRUE(files.replaceAtomically(file, std::string(300'000, 'x')));
    const std::string content("a\0b\n", 4);
    ASSERT_TRUE(files.replaceAtomically(file, content));
    EXPECT_EQ(files.readFile(file).value(), content);
    ASSERT_TRUE(files.replaceAtomically(file, ""));
    EXPECT_EQ(files.readFile(file).value(), "");
}

TEST_F(PosixFileSystemTest, TheFileAndThenItsDirectoryAreSynced) {
    synced.clear();
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_EQ(synced, "fd");
    ASSERT_FALSE(files.exportFile(file, "{}"));
    EXPECT_EQ(synced, "fdfd");
}

TEST_F(PosixFileSystemTest, AReaderOfTheOldFileGoesOnReadingTheOldFile) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    std::ifstream reader(file);
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old");
}

TEST_F(PosixFileSystemTest, AKilledWritersLeftoverIsReplaced) {
    write(file + ".tmp", "half of a rec");
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
    EXPECT_EQ(modeOf(file), 0600u);
}

TEST_F(PosixFileSystemTest, ALinkThatLiesInTheSuccessorsPlaceIsNotWrittenThrough) {
    write(directory.path() + "/victim", "precious");
    fs::create_symlink(directory.path() + "/victim", file + ".tmp");
    ASSERT_TRUE(files.replaceAtomically(file, "{}"));
    EXPECT_EQ(files.readFile(directory.path() + "/victim").value(), "precious");
}

TEST_F(PosixFileSystemTest, ASymbolicLinkStaysAndItsTargetIsReplaced) {
    fs::create_directory(directory.path() + "/elsewhere");
    write(directory.path() + "/elsewhere/real.json", "old");
    fs::create_symlink("elsewhere/real.json", file);
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(files.readFile(directory.path() + "/elsewhere/real.json").value(), "new");
}

TEST_F(PosixFileSystemTest, ContentThatComesInPiecesIsWrittenWhole) {
    ASSERT_TRUE(files.replaceAtomically(file, [](ByteSink& sink) {
        for (const auto* piece : {"one ", "", "two ", "three"}) EXPECT_TRUE(sink.append(piece));
    }));
    EXPECT_EQ(files.readFile(file).value(), "one two three");
}

TEST_F(PosixFileSystemTest, APieceThatCannotBeWrittenEndsTheContentAndKeepsTheOldFile) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    std::vector<bool> taken;
    const auto status = [&] {
        const FileSizeLimit limit(4096);
        return files.replaceAtomically(file, [&](ByteSink& sink) {
            taken.push_back(sink.append("small"));
            taken.push_back(sink.append(std::string(100'000, 'x')));
            taken.push_back(sink.append("small"));
        });
    }();
    EXPECT_THAT(taken, testing::ElementsAre(true, false, false));
    ASSERT_FALSE(status);
    EXPECT_THAT(status.error().message, AllOf(HasSubstr("write "), HasSubstr(": File too large")));
    EXPECT_EQ(files.readFile(file).value(), "old");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, AWriteReturnsWhatTheNewFileLooksLikeUntilSomebodyReplacesIt) {
    const auto written = files.replaceAtomically(file, "ours");
    ASSERT_TRUE(written);
    EXPECT_EQ(written.value(), files.inspect(file).value());
    ASSERT_TRUE(files.replaceAtomically(file, "them"));
    EXPECT_NE(written.value(), files.inspect(file).value()) << "of the same size, yet another file";
}

TEST_F(PosixFileSystemTest, AnInterruptedWriteKeepsTheOldFileAndLeavesNoTemporaryOne) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    const auto status = [this] {
        const FileSizeLimit limit(4096);
        return files.replaceAtomically(file, std::string(100'000, 'x'));
    }();
    ASSERT_FALSE(status);
    EXPECT_THAT(status.error().message, AllOf(HasSubstr("write "), HasSubstr(": File too large")));
    EXPECT_EQ(files.readFile(file).value(), "old");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, ADirectoryInTheFilesPlaceIsAnErrorAndLeavesNothingBeside) {
    fs::create_directory(file);
    const auto status = files.replaceAtomically(file, "{}");
    ASSERT_FALSE(status);
    EXPECT_THAT(status.error().message, HasSubstr("rename "));
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
    EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(PosixFileSystemTest, ADirectoryInTheSuccessorsPlaceIsAnErrorAndKeepsTheOldFile) {
    ASSERT_TRUE(files.replaceAtomically(file, "old"));
    fs::create_directory(file + ".tmp");
    const auto status = files.replaceAtomically(file, "new");
    ASSERT_FALSE(status);
    EXPECT_THAT(status.error().message, HasSubstr("open "));
    EXPECT_EQ(files.readFile(file).value(), "old");
}

TEST_F(PosixFileSystemTest, AMissingDirectoryIsAnError) {
    const auto status = files.replaceAtomically(directory.path() + "/none/today.json", "{}");
    ASSERT_FALSE(status);
    EXPECT_THAT(status.error().message, AllOf(HasSubstr("open "), HasSubstr(": No such file or directory")));
}

TEST_F(PosixFileSystemTest, TheUmaskChangesNothingOfWhatIsPrivate) {
    for (const mode_t mask : {0000U, 0777U}) {
        const Umask umask(mask);
        const auto folder = directory.path() + "/folder-" + std::to_string(mask);
        ASSERT_TRUE(files.createDirectories(folder));
        ASSERT_TRUE(files.replaceAtomically(folder + "/f", "x"));
        EXPECT_EQ(modeOf(folder), 0700u);
        EXPECT_EQ(modeOf(folder + "/f"), 0600u);
    }
}

TEST_F(PosixFileSystemTest, ALinkToWhatIsNotThereYetStaysAndItsTargetIsMade) {
    fs::create_directory(directory.path() + "/elsewhere");
    fs::create_symlink("elsewhere/real.json", file);
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(files.readFile(directory.path() + "/elsewhere/real.json").value(), "new");
}

TEST_F(PosixFileSystemTest, ALinkThatLeadsToItselfIsReplaced) {
    fs::create_symlink("today.json", file);
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    EXPECT_FALSE(fs::is_symlink(file));
    EXPECT_EQ(files.readFile(file).value(), "new");
}

TEST_F(PosixFileSystemTest, TheRecordsDirectoryIsMadeWhenItIsGone) {
    const auto data = directory.path() + "/data";
    EXPECT_EQ(files.ensureRecordLock(data), RecordLock::held);
    EXPECT_EQ(modeOf(data), 0700u);
}

TEST_F(PosixFileSystemTest, AFileIsSetAsideUnderItsNameAndTheDay) {
    write(file, "garbage");
    const auto kept = files.setAside(file, "damaged");
    ASSERT_TRUE(kept && kept.value());
    EXPECT_THAT(*kept.value(), testing::MatchesRegex(file + "\\.damaged-[0-9]{4}-[0-9]{2}-[0-9]{2}"));
    EXPECT_EQ(files.readFile(*kept.value()).value(), "garbage");
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(PosixFileSystemTest, WhatWasSetAsideBeforeIsKept) {
    write(file, "first");
    const auto first = *files.setAside(file, "damaged").value();
    write(file, "second");
    const auto second = *files.setAside(file, "damaged").value();
    write(file, "third");
    const auto third = *files.setAside(file, "damaged").value();
    EXPECT_EQ(second, first + "-2");
    EXPECT_EQ(third, first + "-3");
    EXPECT_EQ(files.readFile(first).value(), "first");
    EXPECT_EQ(files.readFile(second).value(), "second");
    EXPECT_EQ(files.readFile(third).value(), "third");
}

TEST_F(PosixFileSystemTest, AMissingOrEmptyFileIsNotSetAside) {
    EXPECT_EQ(files.setAside(file, "damaged").value(), std::nullopt);
    write(file, "");
    EXPECT_EQ(files.setAside(file, "damaged").value(), std::nullopt);
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(PosixFileSystemTest, OfALinkItsTargetIsSetAsideAndTheLinkStays) {
    fs::create_directory(directory.path() + "/elsewhere");
    write(directory.path() + "/elsewhere/real.json", "garbage");
    fs::create_symlink("elsewhere/real.json", file);
    const auto kept = *files.setAside(file, "damaged").value();
    EXPECT_TRUE(kept.starts_with(directory.path() + "/elsewhere/real.json.damaged-")) << kept;
    ASSERT_TRUE(files.replaceAtomically(file, "new"));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(files.readFile(directory.path() + "/elsewhere/real.json").value(), "new");
    EXPECT_EQ(files.readFile(kept).value(), "garbage");
}

TEST_F(PosixFileSystemTest, AnExportKeepsTheModeOfTheFileThatIsThere) {
    write(file, "old");
    for (const mode_t mode : {0640U, 0666U, 0444U}) {
        ASSERT_EQ(::chmod(file.c_str(), mode), 0);
        const Umask umask(0077);
        EXPECT_FALSE(files.exportFile(file, "new"));
        EXPECT_EQ(modeOf(file), mode);
    }
    EXPECT_EQ(files.readFile(file).value(), "new");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, ANewExportObeysTheUmask) {
    for (const mode_t mask : {0022U, 0007U, 0077U}) {
        const Umask umask(mask);
        const auto path = file + std::to_string(mask);
        EXPECT_FALSE(files.exportFile(path, "new"));
        EXPECT_EQ(modeOf(path), 0666u & ~mask);
    }
}

TEST_F(PosixFileSystemTest, AnExportLeavesItsNeighboursAlone) {
    write(file + ".tmp", "the user's own");
    EXPECT_FALSE(files.exportFile(file, "new"));
    EXPECT_EQ(files.readFile(file + ".tmp").value(), "the user's own");
    EXPECT_THAT(names(), testing::ElementsAre("today.json", "today.json.tmp"));
}

TEST_F(PosixFileSystemTest, AnExportFollowsALink) {
    fs::create_directory(directory.path() + "/elsewhere");
    write(directory.path() + "/elsewhere/real.csv", "old");
    ASSERT_EQ(::chmod((directory.path() + "/elsewhere/real.csv").c_str(), 0644), 0);
    fs::create_symlink("elsewhere/real.csv", file);
    EXPECT_FALSE(files.exportFile(file, "new"));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(files.readFile(directory.path() + "/elsewhere/real.csv").value(), "new");
    EXPECT_EQ(modeOf(directory.path() + "/elsewhere/real.csv"), 0644u);
}

TEST_F(PosixFileSystemTest, AnInterruptedExportKeepsTheOldFileAndLeavesNoTemporaryOne) {
    write(file, "old");
    std::optional<ExportError> failure;
    {
        const FileSizeLimit limit(4096);
        failure = files.exportFile(file, std::string(100'000, 'x'));
    }
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind, ExportErrorKind::noSpace);
    EXPECT_EQ(failure->message, "write " + file + ": File too large");
    EXPECT_EQ(files.readFile(file).value(), "old");
    EXPECT_THAT(names(), testing::ElementsAre("today.json"));
}

TEST_F(PosixFileSystemTest, AFailedExportReportsWhy) {
    const auto kindAt = [&](const std::string& path) { return files.exportFile(path, "x").value().kind; };
    EXPECT_EQ(kindAt(directory.path() + "/none/x.csv"), ExportErrorKind::folderMissing);
    EXPECT_EQ(kindAt(directory.path()), ExportErrorKind::notAFile);
    EXPECT_EQ(kindAt("/dev/full"), ExportErrorKind::notAFile);
    EXPECT_EQ(kindAt(directory.path() + "/" + std::string(300, 'x')), ExportErrorKind::nameTooLong);
    EXPECT_THAT(names(), testing::IsEmpty());
}

TEST_F(PosixFileSystemTest, ANameOfMaximumLengthCanBeExported) {
    const auto longest = directory.path() + "/" + std::string(255, 'x');
    EXPECT_FALSE(files.exportFile(longest, "new"));
    EXPECT_EQ(files.readFile(longest).value(), "new");
}

TEST_F(PosixFileSystemTest, PathsNeedNotBeUtf8) {
    const auto folder = directory.path() + "/caf\xE9";
    ASSERT_TRUE(files.createDirectories(folder));
    ASSERT_TRUE(files.replaceAtomically(folder + "/today.json", "{}"));
    EXPECT_EQ(files.readFile(folder + "/today.json").value(), "{}");
    EXPECT_THAT(names(), testing::ElementsAre("caf\xE9"));
}

TEST_F(PosixFileSystemTest, NonRegularFilesCannotBeRead) {
    EXPECT_THAT(files.readFile(file).error().message, HasSubstr("No such file or directory"));
    EXPECT_THAT(files.readFile(directory.path()).error().message, HasSubstr("not a regular file"));
    const auto pipe = directory.path() + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THAT(files.readFile(pipe).error().message, HasSubstr("not a regular file"));
}

TEST_F(PosixFileSystemTest, AFileThatDoesNotTellItsSizeIsReadWhole) {
    const auto status = files.readFile("/proc/self/status");
    ASSERT_TRUE(status);
    EXPECT_THAT(status.value(), AllOf(testing::StartsWith("Name:"), testing::EndsWith("\n")));
    EXPECT_GT(status.value().size(), 256u);
}

}  // namespace
}  // namespace tidewatch::platform
