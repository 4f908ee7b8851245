#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>

#include "platform/posix/file_descriptor.h"
#include "platform/posix/posix_file_system.h"
#include "tests/platform/posix/ordinary_user.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

struct DirectoryTreeTest : testing::Test {
    test::TemporaryDirectory directory;
    PosixFileSystem files{directory.path()};

    [[nodiscard]] std::string at(const std::string& name) const { return directory.path() + "/" + name; }

    // What is found below the test's directory, by relative path.
    std::map<std::string, FoundFile> find(HiddenFiles hidden = HiddenFiles::included) {
        std::map<std::string, FoundFile> found;
        const auto status = files.enumerate(directory.path(), hidden, [&](const FoundFile& file) {
            found.emplace(file.path.substr(directory.path().size() + 1), file);
            return VisitAction::proceed;
        });
        EXPECT_TRUE(status);
        return found;
    }

    std::vector<std::string> names(HiddenFiles hidden = HiddenFiles::included) {
        std::vector<std::string> result;
        for (const auto& [name, file] : find(hidden)) result.push_back(name);
        return result;
    }
};

TEST_F(DirectoryTreeTest, EverythingBelowIsFoundWithItsValues) {
    directory.write("a", "12345");
    directory.write("b/c/d", "1");
    const auto found = find();
    ASSERT_EQ(found.size(), 4u);
    for (const auto& [name, file] : found) EXPECT_EQ(file.info, files.inspect(at(name)).value()) << name;
    EXPECT_EQ(found.at("a").info.size, 5u);
    EXPECT_EQ(found.at("b/c").info.kind, FileKind::directory);
}

TEST_F(DirectoryTreeTest, TellsWhenAFileWasLastRead) {
    directory.write("a", "1");
    const timespec times[] = {{.tv_sec = 1'000'000'000, .tv_nsec = 5}, {.tv_sec = 900'000'000, .tv_nsec = 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, at("a").c_str(), times, 0), 0);
    const auto file = find().at("a");
    EXPECT_EQ(file.accessed, FileTime(std::chrono::seconds(1'000'000'000) + std::chrono::nanoseconds(5)));
    EXPECT_EQ(file.info.modified, FileTime(std::chrono::seconds(900'000'000)));
}

TEST_F(DirectoryTreeTest, ADirectoryComesBeforeWhatItHolds) {
    directory.write("a/b/c", "");
    std::vector<std::string> paths;
    ASSERT_TRUE(files.enumerate(directory.path(), HiddenFiles::included, [&](const FoundFile& file) {
        paths.emplace_back(file.path);
        return VisitAction::proceed;
    }));
    EXPECT_THAT(paths, testing::ElementsAre(at("a"), at("a/b"), at("a/b/c")));
}

TEST_F(DirectoryTreeTest, HiddenOnesAreSkippedWithAllBelowThem) {
    directory.write("a", "");
    directory.write(".b", "");
    directory.write(".c/d", "");
    EXPECT_THAT(names(HiddenFiles::skipped), UnorderedElementsAre("a"));
    EXPECT_THAT(names(HiddenFiles::included), UnorderedElementsAre("a", ".b", ".c", ".c/d"));
}

TEST_F(DirectoryTreeTest, ASkippedDirectoryIsNotEntered) {
    directory.write("a/b", "");
    directory.write("c/d", "");
    std::vector<std::string> paths;
    ASSERT_TRUE(files.enumerate(directory.path(), HiddenFiles::included, [&](const FoundFile& file) {
        paths.emplace_back(file.path);
        return file.path.ends_with("/a") ? VisitAction::skip : VisitAction::proceed;
    }));
    EXPECT_THAT(paths, UnorderedElementsAre(at("a"), at("c"), at("c/d")));
}

TEST_F(DirectoryTreeTest, NothingIsVisitedAfterAStop) {
    directory.write("a/b", "");
    directory.write("c/d", "");
    int found = 0;
    ASSERT_TRUE(files.enumerate(directory.path(), HiddenFiles::included, [&](const FoundFile&) {
        ++found;
        return VisitAction::stop;
    }));
    EXPECT_EQ(found, 1);
}

TEST_F(DirectoryTreeTest, LinksAreReportedButNotFollowed) {
    directory.write("a/b", "12345");
    fs::create_symlink("..", at("a/up"));
    fs::create_symlink("a/b", at("toFile"));
    fs::create_symlink("none", at("toNothing"));
    fs::create_symlink("circle", at("circle"));
    const auto found = find();
    EXPECT_THAT(names(), UnorderedElementsAre("a", "a/b", "a/up", "toFile", "toNothing", "circle"));
    for (const auto* name : {"a/up", "toFile", "toNothing", "circle"}) {
        EXPECT_EQ(found.at(name).info.kind, FileKind::link) << name;
    }
    EXPECT_EQ(found.at("toFile").info.size, 3u) << "the length of the link itself";
}

TEST_F(DirectoryTreeTest, AStartThatIsALinkIsFollowed) {
    directory.write("a/b", "");
    fs::create_symlink("a", at("link"));
    std::vector<std::string> paths;
    ASSERT_TRUE(files.enumerate(at("link"), HiddenFiles::included, [&](const FoundFile& file) {
        paths.emplace_back(file.path);
        return VisitAction::proceed;
    }));
    EXPECT_THAT(paths, UnorderedElementsAre(at("link/b")));
}

TEST_F(DirectoryTreeTest, APipeIsFoundAndNotOpened) {
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_EQ(find().at("pipe").info.kind, FileKind::other);
}

TEST_F(DirectoryTreeTest, NamesNeedNotBeUtf8) {
    directory.write("\xff\xfe/\xe9t\xe9", "1");
    EXPECT_THAT(names(), UnorderedElementsAre("\xff\xfe", "\xff\xfe/\xe9t\xe9"));
}

TEST_F(DirectoryTreeTest, AnUnreadableDirectoryIsReportedAndItsContentSkipped) {
    directory.write("a/x", "");
    directory.write("closed/y", "");
    directory.write("z/x", "");
    ::chmod(at("closed").c_str(), 0);
    const test::OrdinaryUser user(directory.path());
    EXPECT_THAT(names(), UnorderedElementsAre("a", "a/x", "closed", "z", "z/x"));
    const auto inside = files.enumerate(at("closed"), HiddenFiles::included,
                                        [](const FoundFile&) { return VisitAction::proceed; });
    EXPECT_EQ(inside.error().kind, FileErrorKind::permissionDenied);
}

TEST_F(DirectoryTreeTest, WhatIsRemovedMeanwhileIsSkipped) {
    for (const auto* name : {"a/x/1", "b/x/1", "c/x/1"}) directory.write(name, "");
    // Once a directory is entered, the two others are gone.
    std::vector<std::string> entered;
    ASSERT_TRUE(files.enumerate(directory.path(), HiddenFiles::included, [&](const FoundFile& file) {
        if (file.path.ends_with("/x")) {
            entered.emplace_back(file.path);
            for (const auto* name : {"a", "b", "c"}) {
                if (at(name) + "/x" != file.path) fs::remove_all(at(name));
            }
        }
        return VisitAction::proceed;
    }));
    EXPECT_EQ(entered.size(), 1u);
}

TEST_F(DirectoryTreeTest, ADirectoryThatBecomesALinkMeanwhileIsNotEntered) {
    directory.write("outside/secret", "");
    directory.write("inside/a/b", "");
    std::vector<std::string> paths;
    ASSERT_TRUE(files.enumerate(at("inside"), HiddenFiles::included, [&](const FoundFile& file) {
        paths.emplace_back(file.path);
        fs::remove_all(at("inside/a"));
        fs::create_symlink(at("outside"), at("inside/a"));
        return VisitAction::proceed;
    }));
    EXPECT_THAT(paths, UnorderedElementsAre(at("inside/a")));
}

TEST_F(DirectoryTreeTest, AMissingStartIsNotFound) {
    directory.write("file", "");
    const auto kind = [&](const std::string& path) {
        return files
            .enumerate(path, HiddenFiles::included, [](const FoundFile&) { return VisitAction::proceed; })
            .error()
            .kind;
    };
    EXPECT_EQ(kind(at("none")), FileErrorKind::notFound);
    EXPECT_EQ(kind(at("file/below")), FileErrorKind::notFound);
    EXPECT_EQ(kind(at("file")), FileErrorKind::unreadable);
}

TEST_F(DirectoryTreeTest, AHundredThousandFilesAreFound) {
    for (int folder = 0; folder < 100; ++folder) {
        const auto name = at(std::to_string(folder));
        ASSERT_EQ(::mkdir(name.c_str(), 0700), 0);
        const FileDescriptor parent(::open(name.c_str(), O_RDONLY | O_DIRECTORY));
        for (int file = 0; file < 1'000; ++file) {
            ASSERT_EQ(::mknodat(parent.get(), std::to_string(file).c_str(), S_IFREG | 0600, 0), 0);
        }
    }
    int found = 0;
    ASSERT_TRUE(files.enumerate(directory.path(), HiddenFiles::included, [&](const FoundFile& file) {
        found += file.info.kind == FileKind::file ? 1 : 0;
        return VisitAction::proceed;
    }));
    EXPECT_EQ(found, 100'000);
}

// Deeper than the maximum path length and the number of file descriptors.
TEST_F(DirectoryTreeTest, AnEndlessTreeIsEnumeratedUpToTheMaximumPathLength) {
    std::vector<FileDescriptor> parents;
    parents.emplace_back(::open(directory.path().c_str(), O_RDONLY | O_DIRECTORY));
    constexpr int depth = 700;
    constexpr auto* name = "deeper";
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(::mkdirat(parents.back().get(), name, 0700), 0);
        parents.emplace_back(::openat(parents.back().get(), name, O_RDONLY | O_DIRECTORY));
        ASSERT_TRUE(parents.back().isOpen());
    }
    const auto reached = (4096 - directory.path().size()) / 7;
    EXPECT_NEAR(static_cast<double>(names().size()), static_cast<double>(reached), 2);
    while (parents.size() > 1) {
        parents.pop_back();
        ASSERT_EQ(::unlinkat(parents.back().get(), name, AT_REMOVEDIR), 0);
    }
}

}  // namespace
}  // namespace tidewatch::platform
