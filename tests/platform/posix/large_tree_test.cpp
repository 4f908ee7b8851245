// Trees that are read by two threads.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <thread>

#include "platform/posix/directory_tree.h"
#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

constexpr int folders = 100;
constexpr int filesPerFolder = 60;
constexpr int entries = 1 + folders + folders * filesPerFolder;

class LargeTreeTest : public testing::Test {
protected:
    // Links, which are made faster than files.
    void SetUp() override {
        directory.write("file", "");
        for (int folder = 0; folder < folders; ++folder) {
            // Each third one lies in the one before it.
            const auto path = folder % 3 == 2 ? folderPath(folder - 1) + "/inside" : folderPath(folder);
            std::filesystem::create_directories(path);
            for (int file = 0; file < filesPerFolder; ++file)
                std::filesystem::create_hard_link(directory.path() + "/file",
                                                  fmt::format("{}/{}", path, file));
        }
    }

    [[nodiscard]] std::string folderPath(int folder) const {
        return fmt::format("{}/folder {}", directory.path(), folder);
    }

    test::TemporaryDirectory directory;
};

TEST_F(LargeTreeTest, EverythingIsFoundOnceAndADirectoryBeforeItsEntries) {
    // Not protected: the visitor is called by one thread at a time.
    std::map<std::string, int> found{{directory.path(), 1}};
    int orphans = 0;
    ASSERT_TRUE(enumerateDirectoryTree(directory.path(), HiddenFiles::included, [&](const FoundFile& file) {
        const auto path = std::string(file.path);
        if (!found.contains(path.substr(0, path.rfind('/')))) ++orphans;
        ++found[path];
        return VisitAction::proceed;
    }));
    EXPECT_EQ(found.size(), entries + 1);
    EXPECT_EQ(orphans, 0);
    for (const auto& [path, times] : found) EXPECT_EQ(times, 1) << path;
}

TEST_F(LargeTreeTest, TwoThreadsReadIt) {
    // Whichever gets to run: on a busy machine it may be one, but not always.
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::set<std::thread::id> threads;
        ASSERT_TRUE(enumerateDirectoryTree(directory.path(), HiddenFiles::included, [&](const FoundFile&) {
            threads.insert(std::this_thread::get_id());
            return VisitAction::proceed;
        }));
        if (threads.size() == 2) return;
    }
    ADD_FAILURE() << "one thread read it alone each time";
}

TEST_F(LargeTreeTest, TheVisitorMayStopItAtAnyPoint) {
    for (const int last : {1, 4096, 5000, entries}) {
        int calls = 0;
        ASSERT_TRUE(enumerateDirectoryTree(directory.path(), HiddenFiles::included, [&](const FoundFile&) {
            return ++calls == last ? VisitAction::stop : VisitAction::proceed;
        }));
        EXPECT_EQ(calls, last);
    }
}

TEST_F(LargeTreeTest, WhatVanishesMeanwhileIsSkipped) {
    int calls = 0;
    ASSERT_TRUE(enumerateDirectoryTree(directory.path(), HiddenFiles::included, [&](const FoundFile&) {
        if (++calls == 5000) {
            for (int folder = 0; folder < folders; ++folder) std::filesystem::remove_all(folderPath(folder));
        }
        return VisitAction::proceed;
    }));
    EXPECT_GE(calls, 5000);
    EXPECT_LT(calls, entries);
}

TEST_F(LargeTreeTest, AnotherTreeCanBeReadAtTheSameTime) {
    int ours = 0;
    int theirs = 0;
    const auto countInto = [&](int& count) {
        return enumerateDirectoryTree(directory.path(), HiddenFiles::included, [&count](const FoundFile&) {
            ++count;
            return VisitAction::proceed;
        });
    };
    std::thread other([&] { EXPECT_TRUE(countInto(theirs)); });
    EXPECT_TRUE(countInto(ours));
    other.join();
    EXPECT_EQ(ours, entries);
    EXPECT_EQ(theirs, entries);
}

}  // namespace
}  // namespace tidewatch::platform
