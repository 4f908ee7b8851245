#include "platform/linux/desktop_entries.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_directory.h"

namespace tidewatch::platform {
namespace {

class DesktopEntriesTest : public testing::Test {
protected:
    test::TemporaryDirectory home_;
    test::TemporaryDirectory shared_;
    DesktopEntries entries_{{home_.path(), shared_.path()}};
};

TEST_F(DesktopEntriesTest, AnAnnouncedClassNamesTheEntryWhateverItsLetterCase) {
    shared_.write("org.example.Writer.desktop",
                  "[Desktop Entry]\nName=Writer\nStartupWMClass=example-writer\n");
    EXPECT_EQ(entries_.idForWindow("x", "Example-Writer"), "org.example.Writer");
}

TEST_F(DesktopEntriesTest, APartOfAnApplicationWithAnEntryOfItsOwnGoesBeforeTheApplication) {
    shared_.write("browser.desktop", "[Desktop Entry]\nStartupWMClass=Browser\n");
    shared_.write("web-app.desktop", "[Desktop Entry]\nStartupWMClass=crx_one\n");
    EXPECT_EQ(entries_.idForWindow("crx_one", "Browser"), "web-app");
    EXPECT_EQ(entries_.idForWindow("crx_two", "Browser"), "browser");
}

TEST_F(DesktopEntriesTest, AClassThatNoEntryKnowsIsNotReplacedByTheInstance) {
    shared_.write("terminal.desktop", "[Desktop Entry]\nStartupWMClass=terminal\n");
    EXPECT_EQ(entries_.idForWindow("terminal", "WorkTerminal"), std::nullopt);
    EXPECT_EQ(entries_.idForWindow("terminal", ""), "terminal");
}

TEST_F(DesktopEntriesTest, AnIdThatEqualsTheClassNamesTheEntry) {
    shared_.write("gimp.desktop", "[Desktop Entry]\nName=Image editor\n");
    EXPECT_EQ(entries_.idForWindow("gimp-2.10", "Gimp"), "gimp");
}

TEST_F(DesktopEntriesTest, AnIdThatEndsInTheClassNamesTheEntry) {
    shared_.write("org.example.Player.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(entries_.idForWindow("player", "player"), "org.example.Player");
}

TEST_F(DesktopEntriesTest, AClassAnnouncedInAnotherGroupDoesNotCount) {
    shared_.write("tool.desktop", "[Desktop Entry]\nName=Tool\n[Desktop Action New]\nStartupWMClass=other\n");
    EXPECT_EQ(entries_.idForWindow("", "other"), std::nullopt);
}

TEST_F(DesktopEntriesTest, TheUsersOwnEntryCountsBeforeTheSharedOne) {
    home_.write("editor.desktop", "[Desktop Entry]\nStartupWMClass=mine\n");
    shared_.write("editor.desktop", "[Desktop Entry]\nStartupWMClass=theirs\n");
    EXPECT_EQ(entries_.idForWindow("", "mine"), "editor");
    EXPECT_EQ(entries_.idForWindow("", "theirs"), std::nullopt);
}

TEST_F(DesktopEntriesTest, AFolderBelowIsPartOfTheId) {
    shared_.write("kde/viewer.desktop", "[Desktop Entry]\nStartupWMClass=viewer\n");
    EXPECT_EQ(entries_.idForWindow("", "viewer"), "kde-viewer");
}

TEST_F(DesktopEntriesTest, AnEntryThatIsInstalledLaterIsFound) {
    EXPECT_EQ(entries_.idForWindow("", "late"), std::nullopt);
    shared_.write("late.desktop", "[Desktop Entry]\n");
    std::filesystem::last_write_time(shared_.path(),
                                     std::filesystem::file_time_type::clock::now() + std::chrono::seconds(2));
    EXPECT_EQ(entries_.idForWindow("", "late"), "late");
}

TEST_F(DesktopEntriesTest, AMissingFolderHasNoEntries) {
    DesktopEntries nowhere({home_.path() + "/missing"});
    EXPECT_EQ(nowhere.idForWindow("a", "b"), std::nullopt);
}

TEST_F(DesktopEntriesTest, AWindowWithoutNamesHasNoEntry) {
    shared_.write("odd.desktop", "[Desktop Entry]\nStartupWMClass=\n");
    EXPECT_EQ(entries_.idForWindow("", ""), std::nullopt);
}

}  // namespace
}  // namespace tidewatch::platform
