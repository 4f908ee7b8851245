#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/x11/x11_active_application.h"
#include "tests/platform/x11/private_x_server.h"

namespace tidewatch::platform {

/// The application in front, on an X server of the test's own without a window manager.
class X11ActiveApplicationTest : public testing::Test {
protected:
    void focus(xcb_window_t window) const {
        server_.setNumber(server_.root(), activeWindow_, window);
        server_.sync();
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
    PrivateXServer server_;
    const xcb_atom_t activeWindow_ = server_.atom("_NET_ACTIVE_WINDOW");
    const xcb_atom_t title_ = server_.atom("_NET_WM_NAME");
    X11Connection connection_;
    DesktopEntries entries_{{}};
    X11ActiveApplication active_{connection_, entries_, AppId("own")};
};

}  // namespace tidewatch::platform
