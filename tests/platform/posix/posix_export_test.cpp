// Exports to paths that the user chooses.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>

#include "platform/posix/posix_file_system_fixture.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;

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

}  // namespace
}  // namespace tidewatch::platform
