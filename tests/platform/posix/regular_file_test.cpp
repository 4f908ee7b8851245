#include "platform/posix/regular_file.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

struct RegularFileTest : testing::Test {
    test::TemporaryDirectory directory;
    const std::string file = directory.path() + "/file";

    void expectRefused(const std::string& why) const {
        const auto content = readRegularFile(file, 1000);
        ASSERT_FALSE(content);
        EXPECT_THAT(content.error().message, testing::AllOf(HasSubstr(file), HasSubstr(why)));
    }
};

TEST_F(RegularFileTest, AFileIsReadWhole) {
    const std::string content("a\0b\n", 4);
    directory.write("file", content);
    EXPECT_EQ(readRegularFile(file, 1000).value(), content);
}

TEST_F(RegularFileTest, AnEmptyFileIsEmpty) {
    directory.write("file", "");
    EXPECT_EQ(readRegularFile(file, 0).value(), "");
}

TEST_F(RegularFileTest, ALinkToAFileIsFollowed) {
    directory.write("real", "content");
    fs::create_symlink("real", file);
    EXPECT_EQ(readRegularFile(file, 1000).value(), "content");
}

TEST_F(RegularFileTest, AFileOfTheLargestSizeIsReadAndOneByteMoreIsRefused) {
    directory.write("file", std::string(1000, 'x'));
    EXPECT_EQ(readRegularFile(file, 1000).value().size(), 1000u);
    directory.write("file", std::string(1001, 'x'));
    expectRefused("more than 1000 bytes");
}

TEST_F(RegularFileTest, AFileOfATerabyteIsRefusedBeforeMemoryIsTaken) {
    directory.write("file", "x");
    fs::resize_file(file, std::uintmax_t{1} << 40);  // takes no space
    expectRefused("more than 1000 bytes");
}

TEST_F(RegularFileTest, AFileThatDoesNotSayItsSizeIsReadToItsLimit) {
    const std::string kernels = "/proc/self/smaps";
    EXPECT_GT(readRegularFile(kernels, anySize).value().size(), 1000u);
    EXPECT_FALSE(readRegularFile(kernels, 1000));
}

TEST_F(RegularFileTest, ANamedPipeWithoutAWriterIsRefused) {
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    expectRefused("not a regular file");
}

TEST_F(RegularFileTest, ALinkToADeviceWithoutAnEndIsRefused) {
    fs::create_symlink("/dev/zero", file);
    expectRefused("not a regular file");
}

TEST_F(RegularFileTest, AFolderIsRefused) {
    fs::create_directory(file);
    expectRefused("not a regular file");
}

TEST_F(RegularFileTest, ALinkToItselfIsRefused) {
    fs::create_symlink("file", file);
    expectRefused("open");
}

TEST_F(RegularFileTest, AMissingFileIsRefused) {
    expectRefused("No such file");
}

struct FolderWalkTest : testing::Test {
    test::TemporaryDirectory directory;
    std::vector<std::string> entered;
    std::vector<std::string> visited;
    std::string barred = "nothing";

    bool walk(WalkLimits limits) {
        return walkFolders(
            directory.path(), limits,
            [this](const std::string& /*path*/, const std::string& way) {
                entered.push_back(way);
                return way != barred;
            },
            [this](const std::string& path, const std::string& way, const std::string& name) {
                EXPECT_TRUE(fs::exists(fs::symlink_status(path + "/" + name)));
                visited.push_back(way + name);
            });
    }
};

TEST_F(FolderWalkTest, EveryFileAndFolderIsMetOnce) {
    directory.write("one", "");
    directory.write("a/two", "");
    directory.write("a/b/three", "");
    EXPECT_TRUE(walk({5, 100}));
    EXPECT_THAT(entered, UnorderedElementsAre("", "a/", "a/b/"));
    EXPECT_THAT(visited, UnorderedElementsAre("one", "a/two", "a/b/three"));
}

TEST_F(FolderWalkTest, TwoCyclicallyLinkedFoldersAreEnteredOnce) {
    directory.write("a/one", "");
    directory.write("b/two", "");
    fs::create_directory_symlink("../b", directory.path() + "/a/b");
    fs::create_directory_symlink("../a", directory.path() + "/b/a");
    EXPECT_TRUE(walk({50, 1000}));
    EXPECT_EQ(entered.size(), 3u);
    EXPECT_EQ(visited.size(), 2u);
}

TEST_F(FolderWalkTest, AFolderIsReachedByItsOwnNameRatherThanByALink) {
    directory.write("real/one", "");
    fs::create_directory_symlink("real", directory.path() + "/a-link");
    fs::create_directory_symlink("real", directory.path() + "/z-link");
    EXPECT_TRUE(walk({5, 100}));
    EXPECT_THAT(visited, UnorderedElementsAre("real/one"));
}

TEST_F(FolderWalkTest, ALinkToAFolderElsewhereIsFollowed) {
    const test::TemporaryDirectory elsewhere;
    elsewhere.write("one", "");
    fs::create_directory_symlink(elsewhere.path(), directory.path() + "/link");
    EXPECT_TRUE(walk({5, 100}));
    EXPECT_THAT(visited, UnorderedElementsAre("link/one"));
}

TEST_F(FolderWalkTest, FoldersBelowTheDepthAreLeftOut) {
    directory.write("a/b/near", "");
    directory.write("a/b/c/far", "");
    EXPECT_FALSE(walk({2, 100}));
    EXPECT_THAT(visited, UnorderedElementsAre("a/b/near"));
}

TEST_F(FolderWalkTest, AfterSoManyNamesTheWalkEnds) {
    for (int i = 0; i < 50; ++i) directory.write("file" + std::to_string(i), "");
    EXPECT_FALSE(walk({5, 20}));
    EXPECT_EQ(visited.size(), 20u);
}

TEST_F(FolderWalkTest, ARefusedFolderIsLeftOutWithAllBelow) {
    directory.write("a/one", "");
    directory.write("a/b/two", "");
    directory.write("c/three", "");
    barred = "a/";
    EXPECT_TRUE(walk({5, 100}));
    EXPECT_THAT(visited, UnorderedElementsAre("c/three"));
}

TEST_F(FolderWalkTest, AMissingFolderAndAFileHaveNothingInThem) {
    EXPECT_TRUE(walkFolders(
        directory.path() + "/missing", {5, 100}, [](const auto&, const auto&) { return true; },
        [](const auto&, const auto&, const auto&) { ADD_FAILURE(); }));
}

}  // namespace
}  // namespace tidewatch::platform
