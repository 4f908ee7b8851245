#include "system/quit_applications.h"

#include <gmock/gmock.h>

#include "platform/fake/fake_running_applications.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct QuitApplicationsTest : testing::Test {
    platform::FakeRunningApplications running;

    void add(std::uint64_t handle, const std::string& id, const std::string& name,
             const std::string& processName = "") {
        running.applications.push_back(
            {.handle = handle, .id = AppId(id), .name = name, .processName = processName});
    }
};

TEST_F(QuitApplicationsTest, ThoseThatTheDesktopDoesNotKnowAreAskedFirst) {
    add(1, "org.editor", "Editor");
    add(2, "", "Editor");
    add(3, "com.editor", "Editor");
    add(4, "", "Editor");
    EXPECT_TRUE(quitApplications(running, "Editor"));
    EXPECT_THAT(running.asked, ElementsAre(2, 4, 1, 3));
}

TEST_F(QuitApplicationsTest, OnlyExactlyThisNameCounts) {
    add(1, "a", "editor");
    add(2, "a", "Editor ");
    add(3, "a", "Editor de texto");
    add(4, "a", "Edit");
    EXPECT_FALSE(quitApplications(running, "Editor"));
    EXPECT_THAT(running.asked, IsEmpty());
}

TEST_F(QuitApplicationsTest, TheNameOfTheProcessCountsToo) {
    add(1, "org.mozilla.firefox", "Firefox ESR", "firefox-esr");
    add(2, "org.gnome.Nautilus", "Archivos", "nautilus");
    EXPECT_TRUE(quitApplications(running, "firefox-esr"));
    EXPECT_THAT(running.asked, ElementsAre(1));
}

TEST_F(QuitApplicationsTest, AnApplicationWithBothNamesIsAskedOnce) {
    add(1, "", "xterm", "xterm");
    EXPECT_TRUE(quitApplications(running, "xterm"));
    EXPECT_THAT(running.asked, ElementsAre(1));
}

TEST_F(QuitApplicationsTest, AProcessWithoutAWindowIsNotReached) {
    EXPECT_FALSE(quitApplications(running, "sshd"));
}

TEST_F(QuitApplicationsTest, WithoutANameNothingIsAsked) {
    add(1, "", "", "");
    add(2, "a", "Editor", "");
    EXPECT_FALSE(quitApplications(running, ""));
    EXPECT_THAT(running.asked, IsEmpty());
}

}  // namespace
}  // namespace tidewatch
