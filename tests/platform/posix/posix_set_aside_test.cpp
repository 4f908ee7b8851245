// Setting damaged files aside.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>

#include "platform/posix/posix_file_system_fixture.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;

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

}  // namespace
}  // namespace tidewatch::platform
