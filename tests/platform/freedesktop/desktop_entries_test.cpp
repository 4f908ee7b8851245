#include "platform/freedesktop/desktop_entries.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>

#include "support/temporary_directory.h"

namespace {

// A folder that hangs, as if on a server that is down: every access blocks until it is back. Only the test's
// own thread is not blocked, so that it can detect accesses of its own.
struct HangingFolder {
    std::mutex mutex;
    std::condition_variable changed;
    std::string path;  // empty: none hangs
    int waiting = 0;
    bool testWasMadeToLook = false;
    const std::thread::id test = std::this_thread::get_id();

    void look(const char* at) {
        std::unique_lock lock(mutex);
        if (path.empty() || path != at) return;
        if (std::this_thread::get_id() == test) {
            testWasMadeToLook = true;
            return;
        }
        ++waiting;
        changed.notify_all();
        changed.wait(lock, [this] { return path.empty(); });
        --waiting;
        changed.notify_all();
    }
    void hang(const std::string& folder) {
        const std::lock_guard lock(mutex);
        path = folder;
        testWasMadeToLook = false;
    }
    void waitUntilSomebodyHangs() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return waiting > 0; });
    }
    void comeBack() {
        std::unique_lock lock(mutex);
        path.clear();
        changed.notify_all();
        changed.wait(lock, [this] { return waiting == 0; });
    }
} hangingFolder;

}  // namespace

// Replaces the C library's.
extern "C" int stat(const char* path, struct stat* status) {
    hangingFolder.look(path);
    return ::fstatat(AT_FDCWD, path, status, 0);
}

namespace tidewatch::platform {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class DesktopEntriesTest : public testing::Test {
protected:
    // The id once everything that is there now has been read.
    std::optional<std::string> idForWindow(const std::string& instance, const std::string& windowClass) {
        auto& entries = this->entries();
        entries.waitUntilLoaded();
        if (auto id = entries.idForWindow(instance, windowClass)) return id;
        entries.waitUntilLoaded();
        return entries.idForWindow(instance, windowClass);
    }

    // Created on first use, so that a test can create its files before.
    DesktopEntries& entries() {
        if (!entries_) {
            entries_.emplace(
                std::vector{home_.path(), shared_.path()}, [this] { return now_; }, timeout_);
        }
        return *entries_;
    }

    // A folder's modification time may be as coarse as the kernel's clock.
    void makeFolderChanged(const std::string& path) {
        fs::last_write_time(path, fs::file_time_type::clock::now() + (stamp_ += 2s));
    }

    void pass(std::chrono::seconds time) { now_ += time; }

    void setTimeout(std::chrono::milliseconds timeout) { timeout_ = timeout; }
    void forget() { entries_.reset(); }

    test::TemporaryDirectory home_;
    test::TemporaryDirectory shared_;

private:
    std::chrono::steady_clock::time_point now_{1h};
    std::chrono::seconds stamp_{0};
    std::chrono::milliseconds timeout_ = 10min;
    std::optional<DesktopEntries> entries_;
};

TEST_F(DesktopEntriesTest, AnAnnouncedClassNamesTheEntryWhateverItsLetterCase) {
    shared_.write("org.example.Writer.desktop",
                  "[Desktop Entry]\nName=Writer\nStartupWMClass=example-writer\n");
    EXPECT_EQ(idForWindow("x", "Example-Writer"), "org.example.Writer");
}

TEST_F(DesktopEntriesTest, APartOfAnApplicationWithAnEntryOfItsOwnGoesBeforeTheApplication) {
    shared_.write("browser.desktop", "[Desktop Entry]\nStartupWMClass=Browser\n");
    shared_.write("web-app.desktop", "[Desktop Entry]\nStartupWMClass=crx_one\n");
    EXPECT_EQ(idForWindow("crx_one", "Browser"), "web-app");
    EXPECT_EQ(idForWindow("crx_two", "Browser"), "browser");
}

TEST_F(DesktopEntriesTest, AClassThatNoEntryKnowsIsNotReplacedByTheInstance) {
    shared_.write("terminal.desktop", "[Desktop Entry]\nStartupWMClass=terminal\n");
    EXPECT_EQ(idForWindow("terminal", "WorkTerminal"), std::nullopt);
    EXPECT_EQ(idForWindow("terminal", ""), "terminal");
}

TEST_F(DesktopEntriesTest, AnIdThatEqualsTheClassNamesTheEntry) {
    shared_.write("gimp.desktop", "[Desktop Entry]\nName=Image editor\n");
    EXPECT_EQ(idForWindow("gimp-2.10", "Gimp"), "gimp");
}

TEST_F(DesktopEntriesTest, AnIdThatEndsInTheClassNamesTheEntry) {
    shared_.write("org.example.Player.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(idForWindow("player", "player"), "org.example.Player");
}

TEST_F(DesktopEntriesTest, AClassAnnouncedInAnotherGroupDoesNotCount) {
    shared_.write("tool.desktop", "[Desktop Entry]\nName=Tool\n[Desktop Action New]\nStartupWMClass=other\n");
    EXPECT_EQ(idForWindow("", "other"), std::nullopt);
}

TEST_F(DesktopEntriesTest, TheUsersOwnEntryCountsBeforeTheSharedOne) {
    home_.write("editor.desktop", "[Desktop Entry]\nStartupWMClass=mine\n");
    shared_.write("editor.desktop", "[Desktop Entry]\nStartupWMClass=theirs\n");
    EXPECT_EQ(idForWindow("", "mine"), "editor");
    EXPECT_EQ(idForWindow("", "theirs"), std::nullopt);
}

TEST_F(DesktopEntriesTest, AFolderBelowIsPartOfTheId) {
    shared_.write("kde/viewer.desktop", "[Desktop Entry]\nStartupWMClass=viewer\n");
    EXPECT_EQ(idForWindow("", "viewer"), "kde-viewer");
}

TEST_F(DesktopEntriesTest, AnEntryThatIsInstalledLaterIsFound) {
    EXPECT_EQ(idForWindow("", "late"), std::nullopt);
    shared_.write("late.desktop", "[Desktop Entry]\n");
    makeFolderChanged(shared_.path());
    EXPECT_EQ(idForWindow("", "late"), "late");
}

TEST_F(DesktopEntriesTest, AnEntryThatIsInstalledLaterInAFolderBelowIsFound) {
    shared_.write("kde/early.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(idForWindow("", "late"), std::nullopt);
    shared_.write("kde/late.desktop", "[Desktop Entry]\nStartupWMClass=late\n");
    makeFolderChanged(shared_.path() + "/kde");
    EXPECT_EQ(idForWindow("", "late"), "kde-late");
}

TEST_F(DesktopEntriesTest, AFolderThatComesLaterIsRead) {
    fs::remove(home_.path());
    EXPECT_EQ(idForWindow("", "late"), std::nullopt);
    home_.write("late.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(idForWindow("", "late"), "late");
}

TEST_F(DesktopEntriesTest, WhileEntriesAreBeingReadAnAnswerOfNothingIsSaidToBeProvisional) {
    shared_.write("late.desktop", "[Desktop Entry]\n");
    auto& entries = this->entries();
    EXPECT_TRUE(entries.idForWindow("", "late") || entries.isReading() || entries.idForWindow("", "late"));
    entries.waitUntilLoaded();
    EXPECT_FALSE(entries.isReading());
    EXPECT_EQ(entries.idForWindow("", "late"), "late");
}

TEST_F(DesktopEntriesTest, AMissingFolderHasNoEntries) {
    DesktopEntries nowhere({home_.path() + "/missing"});
    nowhere.waitUntilLoaded();
    EXPECT_EQ(nowhere.idForWindow("a", "b"), std::nullopt);
    EXPECT_FALSE(nowhere.isReading());
}

TEST_F(DesktopEntriesTest, ANamedPipeIsNoEntryAndDoesNotBlockTheOthers) {
    ASSERT_EQ(::mkfifo((shared_.path() + "/pipe.desktop").c_str(), 0600), 0);
    shared_.write("editor.desktop", "[Desktop Entry]\nName=Editor\nStartupWMClass=editor\n");
    EXPECT_EQ(idForWindow("", "editor"), "editor");
    EXPECT_EQ(idForWindow("", "pipe"), std::nullopt);
    EXPECT_FALSE(entries().info("pipe", "C"));
    EXPECT_EQ(entries().info("editor", "C")->name, "Editor");
}

TEST_F(DesktopEntriesTest, ALinkToADeviceWithoutAnEndIsNoEntry) {
    fs::create_symlink("/dev/zero", shared_.path() + "/endless.desktop");
    shared_.write("editor.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(idForWindow("", "editor"), "editor");
    EXPECT_EQ(idForWindow("", "endless"), std::nullopt);
    EXPECT_FALSE(entries().info("endless", "C"));
}

TEST_F(DesktopEntriesTest, AnEntryOfExcessiveSizeIsNone) {
    shared_.write("huge.desktop", "[Desktop Entry]\nName=Huge\n");
    fs::resize_file(shared_.path() + "/huge.desktop", std::uintmax_t{1} << 40);  // takes no space
    shared_.write("long.desktop", "[Desktop Entry]\nName=Long\n#" + std::string(200'000, 'x'));
    EXPECT_EQ(idForWindow("", "long"), "long");
    EXPECT_EQ(idForWindow("", "huge"), std::nullopt);
    EXPECT_FALSE(entries().info("huge", "C"));
    EXPECT_EQ(entries().info("long", "C")->name, "Long");
}

TEST_F(DesktopEntriesTest, AUsersFileThatIsNoEntryDoesNotHideTheSharedEntry) {
    ASSERT_EQ(::mkfifo((home_.path() + "/editor.desktop").c_str(), 0600), 0);
    shared_.write("editor.desktop", "[Desktop Entry]\nName=Editor\n");
    EXPECT_EQ(idForWindow("", "editor"), "editor");
    EXPECT_EQ(entries().info("editor", "C")->name, "Editor");
}

TEST_F(DesktopEntriesTest, CyclicallyLinkedFoldersAreReadOnce) {
    shared_.write("a/one.desktop", "[Desktop Entry]\n");
    shared_.write("b/two.desktop", "[Desktop Entry]\n");
    fs::create_directory_symlink(shared_.path() + "/b", shared_.path() + "/a/to-b");
    fs::create_directory_symlink(shared_.path() + "/a", shared_.path() + "/b/to-a");
    fs::create_directory_symlink(shared_.path(), shared_.path() + "/b/root");
    shared_.write("editor.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(idForWindow("", "editor"), "editor");
    EXPECT_EQ(idForWindow("", "unknown"), std::nullopt);
    EXPECT_FALSE(entries().isReading());
}

TEST_F(DesktopEntriesTest, AnIdWithoutAnEndOfWaysThroughLinkedFoldersIsGivenUp) {
    for (const auto* name : {"a", "a-a", "a-a-a"}) {
        fs::create_directory_symlink(shared_.path(), shared_.path() + "/" + name);
    }
    std::string id = "a";
    for (int i = 0; i < 500; ++i) id += "-a";
    EXPECT_FALSE(entries().info(id, "C"));
}

TEST_F(DesktopEntriesTest, AFolderNestedTooDeepIsNotRead) {
    std::string deep;
    for (int i = 0; i < 40; ++i) deep += "d/";
    shared_.write(deep + "deep.desktop", "[Desktop Entry]\nStartupWMClass=deep\n");
    shared_.write("d/d/near.desktop", "[Desktop Entry]\nStartupWMClass=near\n");
    EXPECT_EQ(idForWindow("", "near"), "d-d-near");
    EXPECT_EQ(idForWindow("", "deep"), std::nullopt);
}

TEST_F(DesktopEntriesTest, TheRevisionGrowsWhenAFolderHasChangedAndNotOtherwise) {
    entries().waitUntilLoaded();
    const auto before = entries().revision();
    pass(10s);
    EXPECT_EQ(entries().revision(), before);
    shared_.write("late.desktop", "[Desktop Entry]\n");
    makeFolderChanged(shared_.path());
    pass(10s);
    EXPECT_GT(entries().revision(), before);
}

TEST_F(DesktopEntriesTest, TheRevisionGrowsAgainWhenWhatHasChangedWasRead) {
    entries().waitUntilLoaded();
    makeFolderChanged(shared_.path());
    pass(10s);
    const auto changed = entries().revision();
    entries().waitUntilLoaded();
    EXPECT_GT(entries().revision(), changed);
}

TEST_F(DesktopEntriesTest, TheFoldersAreLookedAtEveryOtherSecondAtMost) {
    entries().waitUntilLoaded();
    pass(2s);
    const auto before = entries().revision();
    makeFolderChanged(shared_.path());
    pass(1s);
    EXPECT_EQ(entries().revision(), before);
    pass(1s);
    EXPECT_GT(entries().revision(), before);
}

TEST_F(DesktopEntriesTest, TheRevisionGrowsOnceAMinuteForEntriesThatAreChangedInTheirPlace) {
    entries().waitUntilLoaded();
    const auto before = entries().revision();
    pass(59s);
    EXPECT_EQ(entries().revision(), before);
    pass(2s);
    EXPECT_EQ(entries().revision(), before + 1);
    pass(59s);
    EXPECT_EQ(entries().revision(), before + 1);
}

TEST_F(DesktopEntriesTest, AFolderThatHangsBlocksNoQuery) {
    shared_.write("editor.desktop", "[Desktop Entry]\nStartupWMClass=editor\n");
    setTimeout(1ms);
    entries().waitUntilLoaded();
    EXPECT_EQ(entries().idForWindow("", "editor"), "editor");
    hangingFolder.hang(shared_.path());
    pass(2s);
    const auto before = entries().revision();
    hangingFolder.waitUntilSomebodyHangs();
    EXPECT_EQ(entries().idForWindow("", "editor"), "editor");
    EXPECT_EQ(entries().idForWindow("", "unknown"), std::nullopt);
    EXPECT_FALSE(entries().isReading()) << "nobody knows of anything to be read";
    EXPECT_FALSE(hangingFolder.testWasMadeToLook);

    shared_.write("late.desktop", "[Desktop Entry]\n");
    makeFolderChanged(shared_.path());
    hangingFolder.comeBack();
    entries().waitUntilLoaded();
    pass(2s);
    EXPECT_GT(entries().revision(), before);
    EXPECT_EQ(entries().idForWindow("", "late"), "late");
}

TEST_F(DesktopEntriesTest, AFolderThatHangsBlocksNoShutdown) {
    setTimeout(1ms);
    entries().waitUntilLoaded();
    hangingFolder.hang(home_.path());
    pass(2s);
    static_cast<void>(entries().revision());
    hangingFolder.waitUntilSomebodyHangs();
    forget();
    EXPECT_FALSE(hangingFolder.testWasMadeToLook);
    hangingFolder.comeBack();
}

TEST_F(DesktopEntriesTest, AWindowWithoutNamesHasNoEntry) {
    shared_.write("odd.desktop", "[Desktop Entry]\nStartupWMClass=\n");
    EXPECT_EQ(idForWindow("", ""), std::nullopt);
}

}  // namespace
}  // namespace tidewatch::platform
