#include "platform/freedesktop/xdg_trash.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "platform/fake/fake_clock.h"
#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;

constexpr Instant deletion = std::chrono::sys_days(std::chrono::March / 9 / 2026) + std::chrono::hours(7) +
                             std::chrono::minutes(5) + std::chrono::seconds(3);

struct XdgTrashTest : testing::Test {
    test::TemporaryDirectory home;
    FakeClock clock{deletion};
    XdgTrash trash{clock, home.path() + "/data"};

    std::string at(const std::string& name) const { return home.path() + "/" + name; }

    // Makes a file and moves it to the trash.
    Status trashNew(const std::string& name, const std::string& content) {
        home.write(name, content);
        return trash.moveToTrash(at(name));
    }
};

TEST_F(XdgTrashTest, AFileGoesToTheUsersTrashWithItsInformation) {
    ASSERT_TRUE(trashNew("Descargas/Año nuevo.mkv", "film"));
    EXPECT_FALSE(home.exists("Descargas/Año nuevo.mkv"));
    EXPECT_EQ(home.read("data/Trash/files/Año nuevo.mkv"), "film");
    EXPECT_EQ(home.read("data/Trash/info/Año nuevo.mkv.trashinfo"),
              "[Trash Info]\nPath=" + home.path() +
                  "/Descargas/A%C3%B1o%20nuevo.mkv\nDeletionDate=2026-03-09T07:05:03\n");
}

TEST_F(XdgTrashTest, TheTrashIsTheUsersAlone) {
    ASSERT_TRUE(trashNew("a", ""));
    struct stat status {};
    ASSERT_EQ(::stat(at("data/Trash/files").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700);
    ASSERT_EQ(::stat(at("data/Trash/info/a.trashinfo").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600);
}

TEST_F(XdgTrashTest, NothingInTheTrashIsOverwritten) {
    for (const char* content : {"first", "second", "third"}) ASSERT_TRUE(trashNew("a.txt", content));
    EXPECT_EQ(home.read("data/Trash/files/a.txt"), "first");
    EXPECT_EQ(home.read("data/Trash/files/a.txt.2"), "second");
    EXPECT_EQ(home.read("data/Trash/files/a.txt.3"), "third");
    EXPECT_TRUE(home.exists("data/Trash/info/a.txt.3.trashinfo"));
}

TEST_F(XdgTrashTest, AFileInTheTrashWithoutInformationIsNotOverwrittenEither) {
    home.write("data/Trash/files/a", "lost");
    ASSERT_TRUE(trashNew("a", "new"));
    EXPECT_EQ(home.read("data/Trash/files/a"), "lost");
    EXPECT_EQ(home.read("data/Trash/files/a.2"), "new");
    EXPECT_FALSE(home.exists("data/Trash/info/a.trashinfo"));
}

TEST_F(XdgTrashTest, ALinkIsMovedAndNotItsTarget) {
    home.write("target", "kept");
    fs::create_symlink(at("target"), at("link"));
    ASSERT_TRUE(trash.moveToTrash(at("link")));
    EXPECT_EQ(home.read("target"), "kept");
    EXPECT_TRUE(fs::is_symlink(at("data/Trash/files/link")));
}

TEST_F(XdgTrashTest, WhatIsNotThereIsAFailureAndLeavesNothingBehind) {
    const auto status = trash.moveToTrash(at("absent"));
    ASSERT_FALSE(status);
    EXPECT_NE(status.error().message.find("absent"), std::string::npos);
    EXPECT_FALSE(home.exists("data/Trash/info/absent.trashinfo"));
    EXPECT_FALSE(trash.moveToTrash("relative"));
}

TEST_F(XdgTrashTest, ATrashThatCannotBeUsedIsAFailureAndTheFileStays) {
    home.write("data/Trash/files", "a file");
    EXPECT_FALSE(trashNew("a", "kept"));
    EXPECT_EQ(home.read("a"), "kept");
    EXPECT_FALSE(home.exists("data/Trash/info/a.trashinfo"));
}

// /dev/shm is a volume of its own.
struct OtherVolume {
    OtherVolume() {
        auto pattern = std::string("/dev/shm/tidewatch-test-XXXXXX");
        path = ::mkdtemp(pattern.data());
    }
    ~OtherVolume() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
        fs::remove_all(trash() + "/files/" + name(), ignored);
        fs::remove(trash() + "/info/" + name() + ".trashinfo", ignored);
        // Only if nothing else is in it.
        for (const auto* part : {"/files", "/info", ""}) ::rmdir((trash() + part).c_str());
    }
    [[nodiscard]] static std::string trash() { return "/dev/shm/.Trash-" + std::to_string(::getuid()); }
    [[nodiscard]] std::string name() const { return path.substr(path.rfind('/') + 1); }

    std::string path;
};

TEST_F(XdgTrashTest, OnAnotherVolumeAFileStaysThereWithARelativePath) {
    const OtherVolume volume;
    ASSERT_TRUE(trash.moveToTrash(volume.path));
    EXPECT_FALSE(fs::exists(volume.path));
    EXPECT_TRUE(fs::exists(volume.trash() + "/files/" + volume.name()));
    std::ifstream info(volume.trash() + "/info/" + volume.name() + ".trashinfo");
    std::string heading, path;
    std::getline(info, heading);
    std::getline(info, path);
    EXPECT_EQ(path, "Path=" + volume.name());
    EXPECT_FALSE(home.exists("data/Trash/info/" + volume.name() + ".trashinfo"));
}

}  // namespace
}  // namespace tidewatch::platform
