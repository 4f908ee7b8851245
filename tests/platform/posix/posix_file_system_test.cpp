#include "platform/posix/posix_file_system.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "platform/posix/posix_file_system_fixture.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

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
