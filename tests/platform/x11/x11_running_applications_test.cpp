#include "platform/x11/x11_running_applications.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <QCoreApplication>
#include <memory>
#include <vector>

#include "platform/fake/fake_applications.h"
#include "platform/linux/proc_processes.h"
#include "tests/platform/x11/private_x_server.h"

namespace tidewatch::platform {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

/// All windows belong to the process of the test, which is another program's unless the test says otherwise.
class X11RunningApplicationsTest : public testing::Test {
protected:
    enum class Closing { supported, unsupported };

    xcb_window_t open(const std::string& windowClass, Closing closing = Closing::supported) {
        const auto window = server_.openWindow(windowClass);
        if (closing == Closing::supported) setAtom(window, "WM_PROTOCOLS", "WM_DELETE_WINDOW");
        windows_.push_back(window);
        announce();
        return window;
    }
    void setAtom(xcb_window_t window, std::string_view property, std::string_view value) {
        const auto atom = server_.atom(value);
        xcb_change_property(server_.client(), XCB_PROP_MODE_REPLACE, window, server_.atom(property),
                            XCB_ATOM_ATOM, 32, 1, &atom);
        server_.sync();
    }
    void setText(xcb_window_t window, std::string_view property, std::string_view value) {
        xcb_change_property(server_.client(), XCB_PROP_MODE_REPLACE, window, server_.atom(property),
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(value.size()), value.data());
        server_.sync();
    }
    // As a window manager would.
    void announce() {
        xcb_change_property(server_.client(), XCB_PROP_MODE_REPLACE, server_.root(),
                            server_.atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 32,
                            static_cast<std::uint32_t>(windows_.size()), windows_.data());
        server_.sync();
    }

    /// The windows that have been asked to close.
    std::vector<xcb_window_t> asked() {
        server_.sync();
        std::vector<xcb_window_t> windows;
        while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(server_.client())}) {
            if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) continue;
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
            EXPECT_EQ(message.type, server_.atom("WM_PROTOCOLS"));
            EXPECT_EQ(message.data.data32[0], server_.atom("WM_DELETE_WINDOW"));
            windows.push_back(message.window);
        }
        return windows;
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    PrivateXServer server_;
    std::vector<xcb_window_t> windows_;
    DesktopEntries entries_{{}};
    FakeApplications applications_;
    int ended_ = 0;
    static constexpr pid_t anotherProcess = 1;
    X11RunningApplications running_{entries_, applications_, anotherProcess, [this] { ++ended_; }};
};

TEST_F(X11RunningApplicationsTest, AProcessIsOneApplicationWithAllItsWindows) {
    const auto first = open("Editor");
    const auto second = open("Editor");
    const auto list = running_.list();
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].name, "Editor");
    EXPECT_TRUE(list[0].id.empty());
    EXPECT_EQ(list[0].processName, processName(::getpid()));
    EXPECT_FALSE(list[0].processName.empty());
    running_.askToClose(list[0]);
    EXPECT_THAT(asked(), UnorderedElementsAre(first, second));
    EXPECT_EQ(ended_, 0);
}

TEST_F(X11RunningApplicationsTest, ARegisteredApplicationHasItsNameFromThere) {
    applications_.registerApplication(AppId("org.editor"), {"Editor de texto", "", {}});
    setText(open("editor"), "_GTK_APPLICATION_ID", "org.editor");
    const auto list = running_.list();
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].id, AppId("org.editor"));
    EXPECT_EQ(list[0].name, "Editor de texto");
}

TEST_F(X11RunningApplicationsTest, WithoutWindowsThereAreNone) {
    EXPECT_THAT(running_.list(), IsEmpty());
}

TEST_F(X11RunningApplicationsTest, WhatNobodyClosesIsLeftOut) {
    open("NoClosing", Closing::unsupported);
    setAtom(open("Desktop"), "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP");
    setAtom(open("Panel"), "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK");
    EXPECT_THAT(running_.list(), IsEmpty());
}

TEST_F(X11RunningApplicationsTest, ADialogClosesWithItsWindow) {
    const auto window = open("Editor");
    const auto dialog = open("Editor");
    server_.setNumber(dialog, XCB_ATOM_WM_TRANSIENT_FOR, window);
    const auto ofTheWholeScreen = open("Editor");
    server_.setNumber(ofTheWholeScreen, XCB_ATOM_WM_TRANSIENT_FOR, server_.root());
    const auto list = running_.list();
    ASSERT_THAT(list, SizeIs(1));
    running_.askToClose(list[0]);
    EXPECT_THAT(asked(), UnorderedElementsAre(window, ofTheWholeScreen));
}

TEST_F(X11RunningApplicationsTest, AWindowThatIsGoneDoesNoHarm) {
    const auto gone = open("Editor");
    const auto window = open("Editor");
    const auto list = running_.list();
    xcb_destroy_window(server_.client(), gone);
    server_.sync();
    running_.askToClose(list.at(0));
    EXPECT_THAT(asked(), UnorderedElementsAre(window));
    EXPECT_THAT(running_.list(), SizeIs(1));
}

TEST_F(X11RunningApplicationsTest, AnApplicationOfNoListIsIgnored) {
    open("Editor");
    running_.askToClose({.handle = 12345});
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(X11RunningApplicationsTest, ThisProgramEndsRegularlyInstead) {
    X11RunningApplications running(entries_, applications_, ::getpid(), [this] { ++ended_; });
    open("Tidewatch");
    const auto list = running.list();
    ASSERT_THAT(list, SizeIs(1));
    running.askToClose(list[0]);
    EXPECT_EQ(ended_, 1);
    EXPECT_THAT(asked(), IsEmpty());
}

}  // namespace
}  // namespace tidewatch::platform
