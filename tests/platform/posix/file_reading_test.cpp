#include <gmock/gmock.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>

#include "platform/posix/posix_file_system.h"
#include "tests/platform/posix/ordinary_user.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

struct FileReadingTest : testing::Test {
    test::TemporaryDirectory directory;
    PosixFileSystem files{directory.path()};
    const std::string log = directory.path() + "/log";

    std::string readOn(FileReader& reader, std::size_t pieceSize) {
        std::string content;
        std::string piece(pieceSize, '\0');
        while (true) {
            const auto got = reader.read(piece);
            EXPECT_TRUE(got);
            if (!got || got.value() == 0) return content;
            content.append(piece, 0, got.value());
        }
    }
};

TEST_F(FileReadingTest, PiecesMakeUpTheFile) {
    directory.write("log", "one two three");
    const auto reader = files.openForReading(log, 0);
    ASSERT_TRUE(reader);
    EXPECT_EQ(readOn(*reader.value(), 4), "one two three");
}

TEST_F(FileReadingTest, APieceIsShortOnlyWhereTheFileEnds) {
    directory.write("log", std::string(100'000, 'x'));
    const auto reader = files.openForReading(log, 0);
    ASSERT_TRUE(reader);
    std::string piece(65'536, '\0');
    EXPECT_EQ(reader.value()->read(piece).value(), 65'536u);
    EXPECT_EQ(reader.value()->read(piece).value(), 34'464u);
    EXPECT_EQ(reader.value()->read(piece).value(), 0u);
}

TEST_F(FileReadingTest, StartsAtTheOffset) {
    directory.write("log", "one two three");
    const auto reader = files.openForReading(log, 8);
    ASSERT_TRUE(reader);
    EXPECT_EQ(readOn(*reader.value(), 100), "three");
}

TEST_F(FileReadingTest, NothingIsReadBeyondTheEnd) {
    directory.write("log", "one");
    const auto reader = files.openForReading(log, 1'000);
    ASSERT_TRUE(reader);
    EXPECT_EQ(readOn(*reader.value(), 100), "");
}

TEST_F(FileReadingTest, AppendedDataIsReadLater) {
    directory.write("log", "one");
    const auto reader = files.openForReading(log, 0);
    ASSERT_TRUE(reader);
    EXPECT_EQ(readOn(*reader.value(), 100), "one");
    std::ofstream(log, std::ios::app) << " two";
    EXPECT_EQ(readOn(*reader.value(), 100), " two");
}

TEST_F(FileReadingTest, AReplacedFileIsReadToItsEnd) {
    directory.write("log", "one two");
    const auto reader = files.openForReading(log, 0);
    ASSERT_TRUE(reader);
    std::array<char, 4> piece{};
    ASSERT_TRUE(reader.value()->read(piece));
    ASSERT_TRUE(files.replaceAtomically(log, "other"));
    EXPECT_EQ(readOn(*reader.value(), 100), "two");
}

TEST_F(FileReadingTest, AMissingFileIsNotFound) {
    directory.write("file", "");
    for (const auto* name : {"/none", "/none/below", "/file/below"}) {
        const auto path = directory.path() + name;
        EXPECT_EQ(files.readFile(path).error().kind, FileErrorKind::notFound) << path;
        EXPECT_EQ(files.inspect(path).error().kind, FileErrorKind::notFound) << path;
        EXPECT_EQ(files.openForReading(path, 0).error().kind, FileErrorKind::notFound) << path;
    }
}

TEST_F(FileReadingTest, ADanglingLinkIsNotFound) {
    std::filesystem::create_symlink("none", log);
    EXPECT_EQ(files.readFile(log).error().kind, FileErrorKind::notFound);
    EXPECT_EQ(files.inspect(log).error().kind, FileErrorKind::notFound);
}

TEST_F(FileReadingTest, WithoutPermissionItIsDenied) {
    directory.write("log", "one");
    directory.write("closed/log", "two");
    ::chmod(log.c_str(), 0);
    ::chmod((directory.path() + "/closed").c_str(), 0);
    const test::OrdinaryUser user(directory.path());
    EXPECT_EQ(files.readFile(log).error().kind, FileErrorKind::permissionDenied);
    EXPECT_EQ(files.openForReading(log, 0).error().kind, FileErrorKind::permissionDenied);
    EXPECT_EQ(files.inspect(directory.path() + "/closed/log").error().kind, FileErrorKind::permissionDenied);
}

TEST_F(FileReadingTest, NonRegularFilesAreUnreadable) {
    ::mkfifo(log.c_str(), 0600);
    for (const auto& path : {log, directory.path()}) {
        EXPECT_EQ(files.readFile(path).error().kind, FileErrorKind::unreadable) << path;
        EXPECT_EQ(files.openForReading(path, 0).error().kind, FileErrorKind::unreadable) << path;
    }
    EXPECT_EQ(files.inspect(log).value().kind, FileKind::other);
}

TEST_F(FileReadingTest, CyclicLinksAreUnreadable) {
    std::filesystem::create_symlink("log", log);
    EXPECT_EQ(files.readFile(log).error().kind, FileErrorKind::unreadable);
}

}  // namespace
}  // namespace tidewatch::platform
