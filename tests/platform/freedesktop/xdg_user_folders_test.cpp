#include "platform/freedesktop/xdg_user_folders.h"

#include <gtest/gtest.h>

#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

struct XdgUserFoldersTest : testing::Test {
    test::TemporaryDirectory config;
    XdgUserFolders folders{"/home/user", config.path()};
};

TEST_F(XdgUserFoldersTest, AreTheUsersOwn) {
    config.write(
        "user-dirs.dirs",
        "# comment\nXDG_DESKTOP_DIR=\"$HOME/Escritorio\"\n XDG_DOWNLOAD_DIR = \"$HOME/Mis \\\"cosas\\\"/\"\n"
        "XDG_DOCUMENTS_DIR=\"/srv/docs\"\nXDG_VIDEOS_DIR=\"$HOME/Vídeos\"\n");
    EXPECT_EQ(folders.path(UserFolder::desktop), "/home/user/Escritorio");
    EXPECT_EQ(folders.path(UserFolder::downloads), "/home/user/Mis \"cosas\"");
    EXPECT_EQ(folders.path(UserFolder::documents), "/srv/docs");
    EXPECT_EQ(folders.path(UserFolder::videos), "/home/user/Vídeos");
}

TEST_F(XdgUserFoldersTest, OneThatIsTheHomeItselfIsLeftOut) {
    config.write("user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/\"\nXDG_VIDEOS_DIR=\"$HOME\"\n");
    EXPECT_EQ(folders.path(UserFolder::desktop), std::nullopt);
    EXPECT_EQ(folders.path(UserFolder::videos), std::nullopt);
}

TEST_F(XdgUserFoldersTest, WithoutAFileTheyHaveTheirEnglishNames) {
    EXPECT_EQ(folders.path(UserFolder::downloads), "/home/user/Downloads");
    EXPECT_EQ(folders.path(UserFolder::desktop), "/home/user/Desktop");
    EXPECT_EQ(folders.path(UserFolder::documents), "/home/user/Documents");
    EXPECT_EQ(folders.path(UserFolder::videos), "/home/user/Videos");
}

TEST_F(XdgUserFoldersTest, LinesThatAreNoAssignmentOfAPathAreIgnored) {
    for (const char* line : {"XDG_VIDEOS_DIR", "XDG_VIDEOS_DIR=", "XDG_VIDEOS_DIR=\"$HOME/a",
                             "XDG_VIDEOS_DIR=\"a\"", "XDG_VIDEOS_DIR=/a", "XDG_VIDEOS_DIR=\"$HOMER/a\"",
                             "#XDG_VIDEOS_DIR=\"/a\"", "XDG_VIDEOS_DIR=\"/a\\"}) {
        config.write("user-dirs.dirs", line);
        EXPECT_EQ(folders.path(UserFolder::videos), "/home/user/Videos") << line;
    }
}

}  // namespace
}  // namespace tidewatch::platform
