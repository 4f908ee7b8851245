// Atomic replacement of files.

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "platform/posix/posix_file_system_fixture.h"

namespace {

// What has been synced, in order: 'f' for a file, 'd' for a directory.
std::string synced;

}  // namespace

// Replaces the C library's.
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

}  // namespace
}  // namespace tidewatch::platform
